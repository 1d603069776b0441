// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/DiaryFiles.h"

#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Date.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/FileCheck.h"
#include "tools/strumenti/ValueCheck.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr TextView kTablePointer = "nometab";

Text In(TextView folder, TextView name)
{
    return Text(folder) + "\\" + Text(name);
}

/// The folder of a diary's lists, empty when its path has none.
Text OwnFolder(const Text& diary)
{
    return TrapValueWith(
        Text(), [&] { return FolderOfDiary(diary); }, [](const ErroreRunTime&) {});
}

/// The year that a diary has by its name, else the present one.
int YearByName(const std::string& diary)
{
    constexpr std::size_t digits = 4;
    const bool named = diary.size() == digits && diary.find_first_not_of("0123456789") == std::string::npos;
    return named ? std::stoi(diary) : Date().Year().value();
}

class FilesCheck
{
public:
    FilesCheck(Context& context, bool overwrites) : folder_(context.Folder()), overwrites_(overwrites) {}

    void CheckDiary(const std::string& diary)
    {
        const Text file = SystemPath((folder_ / DiaryFile(diary)).string());
        CheckIfThere(
            file, [&](const CheckedFile& checked) { return zelvia::CheckDiary(checked, YearByName(diary)); },
            [&] { Module1::CaricaDiario(file); });
        CheckFolder(SystemPath((folder_ / DiaryFolder(diary)).string()));
    }

    /// The pointer to the diary that is opened at the start.
    void CheckStartPointer()
    {
        const Text pointer = In(ProgramFolder(), kStartPointer);
        if (!IsThere(pointer)) {
            AddMissing(pointer, "pointer",
                       Tools::Tr("il file manca, e il programma non troverebbe alcun diario; torna con «\"\"», che "
                                 "vuol dire «prova»"),
                       Remedy::Sure, kNoPath);
            return;
        }
        CheckPointer(pointer, In(ProgramFolder(), kDiaryFolder), [](const Text& path) {
            // One that was never saved has a folder all the same.
            return IsThere(path) || !FindFolder(OwnFolder(path)).empty();
        });
    }

    std::vector<FileReport> reports;

private:
    static constexpr const char* kNoPath = "\"\"\r\n";

    static bool IsThere(TextView path)
    {
        return TrapValueWith(
            false, [&] { return fs::exists(fs::symlink_status(NativePath(path))); }, [](const ErroreRunTime&) {});
    }

    std::string NameOf(TextView path) const { return NativePath(path).lexically_relative(folder_).string(); }

    void AddMissing(TextView path, std::string_view kind, const std::string& text, Remedy remedy, std::string blank)
    {
        Report report(NameOf(path), overwrites_);
        const bool mended = report.Add(kind, 0, {}, text, remedy);
        reports.push_back({std::move(report.findings), mended ? std::optional(std::move(blank)) : std::nullopt});
    }

    void CheckIfThere(const Text& path, const CheckFile& check, const std::function<void()>& read)
    {
        if (!IsThere(path)) {
            return;
        }
        RefuseLinks(folder_, NameOf(path));
        const std::string bytes = ReadFile(NativePath(path));
        const std::string name = NameOf(path);
        FileReport report = CheckToTheEnd(check, {name, bytes, overwrites_});
        if (report.findings.empty()) {
            report.mended = bytes;
            ReadAsTheProgram(report, name, read);
        }
        if (!report.findings.empty()) {
            reports.push_back(std::move(report));
        }
    }

    /// What the program's own reader says of a file that looks right.
    static void ReadAsTheProgram(FileReport& report, const std::string& name, const std::function<void()>& read)
    {
        const BoxTexts boxes;
        TrapWith(read, [](const ErroreRunTime& error) { ReportError(kBareTitle, error); });
        if (!boxes.All().empty()) {
            report.findings.push_back(
                {name,
                 0,
                 {},
                 {},
                 "number",
                 Tools::Tr("il programma non lo legge: «%1»; va deciso a mano", ToUtf8(boxes.All().front())),
                 Remedy::ByHand});
        }
    }

    void CheckFolder(const Text& folder)
    {
        RefuseLinks(folder_, NameOf(folder));
        const std::vector<Text> files = FilesIn(folder);
        // The first start lays all of them in an empty folder. Diaries such as "a" and "a.b" have the same.
        if (files.empty() || !folders_.insert(folder).second) {
            return;
        }
        Module1::CartellaDiario = folder;
        for (const SelectionList list : kFiledLists) {
            CheckOrMiss(
                ListPath(list), CheckList,
                [&] {
                    std::vector<Text> entries;
                    ReadEntries(ListPath(list), entries);
                },
                [&] { return BlankList(list); });
        }
        CheckOrMiss(
            In(folder, "ListePercorso"), CheckRoutes, [] { Module1::CaricaPercorsi(); }, BlankRoutes);
        CheckOrMiss(
            In(folder, "CalendarioGare"), CheckCalendar, [] { Module1::LeggiCalendario(); }, BlankCalendar);
        for (const Text& file : files) {
            if (SameText(fs::path(file).extension().string(), ".tab")) {
                CheckIfThere(In(folder, file), CheckTable, [&] { Module1::LeggiTabella(In(folder, file)); });
            }
        }
        // Without this one no table is active.
        if (IsThere(In(folder, kTablePointer))) {
            CheckPointer(In(folder, kTablePointer), folder, [](const Text& path) { return IsThere(path); });
        }
    }

    static std::string BlankList(SelectionList list)
    {
        std::string bytes;
        for (const TextView entry : FirstEntries(list)) {
            bytes += "\"" + Text(entry) + "\"\r\n";
        }
        return bytes;
    }

    void CheckOrMiss(const Text& path, const CheckFile& check, const std::function<void()>& read,
                     const std::function<std::string()>& blank)
    {
        if (IsThere(path)) {
            CheckIfThere(path, check, read);
        } else {
            AddMissing(
                path, "missing",
                Tools::Tr("il file manca, e il programma lo direbbe con un errore; torna come in un diario nuovo"),
                Remedy::Asked, blank());
        }
    }

    /// A file of one path, of something that is there or, under the same name, in `home`.
    void CheckPointer(const Text& pointer, const Text& home, const std::function<bool(const Text&)>& leads)
    {
        const auto check = [&](const CheckedFile& file) {
            Report report(file.name, overwrites_);
            SourceLines source = SplitSource(file.bytes);
            if (source.lines.empty()) {
                report.Add("pointer", 1, {},
                           Tools::Tr("il file è vuoto, e il programma lo direbbe con un errore; diventa «\"\"»"),
                           Remedy::Sure);
                return FileReport{std::move(report.findings), kNoPath};
            }
            report.CheckSource(source);
            source.lines.resize(1);
            SourceLine& line = source.lines.front();
            report.CheckValue(line, {});
            CheckPath(report, line, home, leads);
            return FileReport{std::move(report.findings), Joined(source.lines)};
        };
        CheckIfThere(pointer, check, [&] { ReadPointer(pointer); });
    }

    static void CheckPath(Report& report, SourceLine& line, const Text& home,
                          const std::function<bool(const Text&)>& leads)
    {
        Text path = line.text.size() < 2 ? Text() : line.text.substr(1, line.text.size() - 2);
        std::replace(path.begin(), path.end(), '/', '\\');
        if (path.empty() || leads(path)) {
            return;
        }
        const Text here = In(home, Mid(path, InStrRev(path, "\\") + 1));
        const bool found = IsThere(here);
        if (report.Add("pointer", line.number, {},
                       found
                           ? Tools::Tr("«%1» non c'è: diventa «%2»", ToUtf8(path), ToUtf8(here))
                           : Tools::Tr("«%1» non c'è, e il programma non lo troverebbe; diventa «\"\"»", ToUtf8(path)),
                       found ? Remedy::Sure : Remedy::Asked)) {
            line.text = "\"" + (found ? here : Text()) + "\"";
        }
    }

    fs::path folder_;
    bool overwrites_;
    std::set<Text> folders_; ///< Those that were looked at.
};

} // namespace

std::vector<FileReport> CheckDiaries(Context& context, const std::vector<std::string>& diaries, bool overwrites)
{
    FilesCheck check(context, overwrites);
    check.CheckStartPointer();
    for (const std::string& diary : diaries) {
        check.CheckDiary(diary);
    }
    return std::move(check.reports);
}

} // namespace zelvia
