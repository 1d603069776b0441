// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/MergeSources.h"

#include "core/Date.h"
#include "core/Tr.h"
#include "diary/Workspace.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/merge/Merge.h"
#include "tools/strumenti/FileCheck.h"

#include <algorithm>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

bool IsFile(const fs::path& path)
{
    return fs::is_regular_file(fs::symlink_status(path));
}

std::vector<OtherVersion> ConflictsHere(Context& context)
{
    std::vector<OtherVersion> versions;
    const fs::path present = DiaryFile(context.ChosenDiary());
    for (const Conflict& conflict : FindConflicts(context.Folder())) {
        if (conflict.file == present) {
            context.Err() << Tools::Tr("«%1» è il diario che si apre all'avvio, e resta com'è.", conflict.file) << "\n";
            continue;
        }
        versions.push_back(
            {*KindOfFile(conflict.original), conflict.original, context.Folder() / conflict.file, conflict.file});
    }
    return versions;
}

void AddFolder(Context& context, const fs::path& other, std::vector<OtherVersion>& versions)
{
    if (other == context.Folder()) {
        throw FileFailure(Tools::Tr("«%1» è la cartella stessa", other));
    }
    if (IsInUse(other)) {
        throw FileFailure(Tools::Tr("il diario di «%1» è aperto: chiuderlo e riprovare", other));
    }
    const std::vector<Conflict> conflicts = FindConflicts(other);
    const std::size_t before = versions.size();
    for (const std::string& file : WorkspaceFiles(other)) {
        const auto kind = KindOfFile(file);
        const bool isConflict = std::any_of(conflicts.begin(), conflicts.end(),
                                            [&](const Conflict& conflict) { return conflict.file == file; });
        if (kind && !isConflict) {
            RefuseLinks(other, file);
            versions.push_back({*kind, file, other / file, std::nullopt});
        }
    }
    if (versions.size() == before) {
        throw FileFailure(Tools::Tr("in «%1» non ci sono diari di Zelvia", other));
    }
}

/// The diary that a file from elsewhere is a version of: the one of --diario, else that of its name, else the present.
std::string DiaryOf(Context& context, const fs::path& file)
{
    if (context.Chosen().diary) {
        return context.PresentDiary();
    }
    const std::string name = file.filename().string();
    const std::string diary = fs::path(OriginalByMark(name).value_or(name)).stem().string();
    return IsFile(context.Folder() / DiaryFile(diary)) ? diary : context.PresentDiary();
}

void AddFile(Context& context, const fs::path& other, std::vector<OtherVersion>& versions)
{
    if (!fs::is_regular_file(other)) {
        throw FileFailure(Tools::Tr("«%1» non c'è", other));
    }
    if (KindOfFile((fs::path(kDiaryFolder) / other.filename()).string()) != FileKind::Diary) {
        throw FileFailure(Tools::Tr("«%1» non è un diario («.zlv») né una cartella", other));
    }
    const std::string file = DiaryFile(DiaryOf(context, other)).string();
    if (other == context.Folder() / file) {
        throw FileFailure(Tools::Tr("«%1» è il diario stesso", other));
    }
    versions.push_back({FileKind::Diary, file, other, std::nullopt});
}

bool BelongsTo(const std::string& file, const std::string& diary)
{
    return file == DiaryFile(diary) || fs::path(file).parent_path() == DiaryFolder(diary);
}

/// Defects with which a file can still be read unchanged.
bool Hinders(FileKind kind, const Finding& finding)
{
    return finding.kind != "range" && finding.kind != "line_end" &&
           (finding.kind != "duplicate" || kind == FileKind::Diary);
}

FileReport Check(FileKind kind, const CheckedFile& file)
{
    switch (kind) {
    case FileKind::Diary: return CheckDiary(file, Date().Year().value());
    case FileKind::Routes: return CheckRoutes(file);
    case FileKind::Races: return CheckCalendar(file);
    case FileKind::Table: return CheckTable(file);
    case FileKind::List: return CheckList(file);
    case FileKind::Pointer: break;
    }
    return {};
}

} // namespace

std::vector<OtherVersion> OtherVersions(Context& context, const std::vector<std::string>& words)
{
    std::vector<OtherVersion> versions = words.empty() ? ConflictsHere(context) : std::vector<OtherVersion>();
    for (const std::string& word : words) {
        const fs::path other = ResolvedFolder(word);
        if (fs::is_directory(other)) {
            AddFolder(context, other, versions);
        } else {
            AddFile(context, other, versions);
        }
    }
    if (context.Chosen().diary) {
        const std::string diary = context.PresentDiary();
        std::erase_if(versions, [&](const OtherVersion& version) { return !BelongsTo(version.file, diary); });
    }
    return versions;
}

std::string DamageOf(FileKind kind, const std::string& name, const Text& bytes)
{
    const FileReport report = Check(kind, {name, bytes, false});
    for (const Finding& finding : report.findings) {
        if (Hinders(kind, finding)) {
            return Tools::Tr("riga %1: %2", finding.line, finding.text);
        }
    }
    return IsWhole(kind, bytes) ? "" : Tools::Tr("non ha le righe che dovrebbe avere");
}

std::vector<Text> CopiesOf(const OtherVersion& version, const std::vector<fs::path>& folders)
{
    std::vector<Text> copies;
    const fs::path root = CopyFolder();
    for (const Copy& copy : root.empty() ? std::vector<Copy>() : CopyStore(root).List()) {
        const bool counts = std::find(folders.begin(), folders.end(), copy.folder) != folders.end();
        const bool younger = version.conflict && fs::exists(fs::symlink_status(copy.place / *version.conflict));
        if (!counts || younger || !IsFile(copy.place / version.file)) {
            continue;
        }
        Text bytes = ReadFile(copy.place / version.file);
        if (copies.empty() || copies.back() != bytes) {
            copies.push_back(std::move(bytes));
        }
    }
    return copies;
}

} // namespace zelvia
