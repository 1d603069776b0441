// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Files.h"
#include "core/Tr.h"
#include "diary/Module1.h"
#include "tools/copies/SafeFiles.h"
#include "tools/merge/Conflicts.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/DiaryFiles.h"

#include <algorithm>
#include <limits>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// The diaries that the words name, else all of the folder.
std::vector<std::string> NamedDiaries(Context& context, Arguments& arguments)
{
    std::vector<std::string> diaries = arguments.TakeWords(0, std::numeric_limits<std::size_t>::max());
    if (diaries.empty() && context.Chosen().diary) {
        diaries.push_back(*context.Chosen().diary);
    }
    const std::vector<std::string> all = context.Diaries();
    // One that was never saved has a folder all the same.
    const auto isThere = [&](const std::string& diary) {
        const fs::path own = DiaryFolder(diary);
        return std::find(all.begin(), all.end(), diary) != all.end() ||
               (!own.empty() && fs::is_directory(fs::symlink_status(context.Folder() / own)));
    };
    for (const std::string& diary : diaries) {
        if (!isThere(diary)) {
            throw FileFailure(
                Tools::Tr("il diario «%1» non c'è: «zelvia-strumenti anni» mostra quelli che ci sono", diary));
        }
    }
    return diaries.empty() ? all : diaries;
}

void PrintForPrograms(Context& context, const std::vector<FileReport>& reports)
{
    Table table{{{"file"}, {"line"}, {"day"}, {"field"}, {"kind"}, {"text"}}, {}};
    for (const FileReport& report : reports) {
        for (const Finding& finding : report.findings) {
            table.rows.push_back({finding.file, finding.line > 0 ? std::to_string(finding.line) : "", finding.day,
                                  finding.field, std::string(finding.kind), finding.text});
        }
    }
    context.Print(table);
}

void PrintForReaders(std::ostream& out, const std::vector<FileReport>& reports)
{
    for (const FileReport& report : reports) {
        out << report.findings.front().file << "\n";
        for (const Finding& finding : report.findings) {
            std::string place = finding.line > 0 ? Tools::Tr("riga %1", finding.line) : "";
            for (const std::string& part : {finding.day, finding.field}) {
                place += (place.empty() || part.empty() ? "" : ", ") + part;
            }
            out << "  " << place << (place.empty() ? "" : ": ") << finding.text << "\n";
        }
    }
}

/// `unread` says that there are diaries which were not looked at.
void Show(Context& context, const std::vector<FileReport>& reports, bool unread)
{
    if (context.Chosen().tsv) {
        PrintForPrograms(context, reports);
        return;
    }
    PrintForReaders(context.Out(), reports);
    if (reports.empty() && !unread) {
        context.Out() << Tools::Tr("Tutto a posto.") << "\n";
    }
}

/// How many of the findings have that remedy.
std::size_t Count(const std::vector<FileReport>& reports, Remedy remedy)
{
    std::size_t count = 0;
    for (const FileReport& report : reports) {
        count +=
            static_cast<std::size_t>(std::count_if(report.findings.begin(), report.findings.end(),
                                                   [&](const Finding& finding) { return finding.remedy == remedy; }));
    }
    return count;
}

/// A diary of which all is mended has to be one that the program reads.
void ExpectReadable(const FileReport& report, const fs::path& place)
{
    const bool all = std::all_of(report.findings.begin(), report.findings.end(),
                                 [](const Finding& finding) { return finding.remedy == Remedy::Sure; });
    if (all && place.extension() == ".zlv") {
        const BoxTexts boxes;
        Module1::CaricaDiario(SystemPath(place.string()));
        if (!boxes.All().empty()) {
            throw FileFailure(Tools::Tr("«%1» non si legge neanche riparato («%2»)", report.findings.front().file,
                                        ToUtf8(boxes.All().front())));
        }
    }
}

/// A second version of a file is no damage, but should not be forgotten.
void TellConflicts(Context& context)
{
    for (const Conflict& conflict : FindConflicts(context.Folder())) {
        context.Err() << Tools::Tr("«%1» è in conflitto con «%2»: «zelvia-strumenti unisci» li unisce.", conflict.file,
                                   conflict.original)
                      << "\n";
    }
}

} // namespace

int MendFiles(Context& context, const std::vector<FileReport>& reports)
{
    FileSet files(context.Folder(), "ripara");
    bool any = false;
    for (const FileReport& report : reports) {
        const fs::path name = report.findings.front().file;
        const fs::path file = context.Folder() / name;
        if (report.mended && (!fs::exists(file) || ReadFile(file) != *report.mended)) {
            const fs::path place = files.Write(name, *report.mended);
            ExpectReadable(report, place);
            any = true;
        }
    }
    return any ? context.Apply(files) : kDone;
}

int RunCheck(Context& context, Arguments& arguments)
{
    TellConflicts(context);
    const bool link = context.TellLink();
    const std::vector<FileReport> reports = CheckDiaries(context, NamedDiaries(context, arguments), false);
    Show(context, reports, link);
    return (reports.empty() && !link) || context.Chosen().rehearsal ? kDone : kNotDone;
}

int RunMend(Context& context, Arguments& arguments)
{
    const bool link = context.TellLink();
    const std::vector<std::string> diaries = NamedDiaries(context, arguments);
    bool overwrites = context.Chosen().overwrite;
    std::vector<FileReport> reports = CheckDiaries(context, diaries, overwrites);
    Show(context, reports, link);
    if (reports.empty()) {
        return link ? kNotDone : kDone;
    }
    const std::size_t asked = Count(reports, Remedy::Asked);
    if (!overwrites && asked > 0 &&
        context.Agrees(Tools::Tr("Riparare anche ciò che ha un rimedio soltanto probabile, %1?", asked))) {
        overwrites = true;
        reports = CheckDiaries(context, diaries, overwrites);
    }
    const std::size_t mended = Count(reports, Remedy::Sure) + (overwrites ? Count(reports, Remedy::Asked) : 0);
    const std::size_t left = Count(reports, Remedy::ByHand) + (overwrites ? 0 : asked);
    context.Told() << Tools::Tr("Da riparare: %1. Restano come sono: %2.", mended, left) << "\n";
    if (mended == 0 && !context.Chosen().rehearsal) {
        return kNotDone;
    }
    if (const auto status = context.AskFirst(Tools::Tr("Riparare?"))) {
        return *status;
    }
    const int status = MendFiles(context, reports);
    context.Told() << Tools::Tr("Riparati: %1. I file di prima sono nell'ultima copia di sicurezza.", mended) << "\n";
    return left > 0 ? kNotDone : status;
}

} // namespace zelvia
