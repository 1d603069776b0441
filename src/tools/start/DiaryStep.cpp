// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"
#include "core/Tr.h"
#include "diary/JournalLines.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/start/BeforeStart.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/DiaryFiles.h"
#include "tools/strumenti/Failures.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <sys/stat.h>

namespace zelvia
{
namespace
{

constexpr const char* kFaultsNote = "difetti";
constexpr const char* kSilent = "guardato";

/// What is wrong with the diary that the program is about to open.
struct Look {
    std::string diary; ///< Empty for one outside of the folder, of which only the pointer is looked at.
    std::string state; ///< Of all that decides what is found; empty when it is unknown.
    std::vector<Finding> findings;

    std::size_t Count(Remedy remedy) const
    {
        return static_cast<std::size_t>(
            std::count_if(findings.begin(), findings.end(), [&](const Finding& one) { return one.remedy == remedy; }));
    }
};

/// The program reads lines that end with LF alone, and writes them with CR LF. Any other CR it takes for a line of its
/// own.
bool IsHarmless(const std::filesystem::path& folder, const Finding& finding)
{
    if (finding.kind != "line_end") {
        return false;
    }
    const std::string bytes = ReadFile(folder / finding.file);
    for (std::size_t at = bytes.find('\r'); at != std::string::npos; at = bytes.find('\r', at + 1)) {
        if (bytes.compare(at, 2, "\r\n") != 0) {
            return false;
        }
    }
    return true;
}

/// Changes with the diaries, with the program that looks at them and with the year for one without dates.
std::string StateOf(const std::filesystem::path& folder)
{
    struct stat program {
    };
    if (::stat("/proc/self/exe", &program) != 0) {
        return {};
    }
    return std::to_string(ChecksumOf(StateOfFiles(folder) + std::to_string(program.st_ino) + " " +
                                     std::to_string(program.st_ctim.tv_sec) + " " +
                                     std::to_string(Date().Year().value())));
}

Options OptionsFor(const std::filesystem::path& folder)
{
    Options options;
    options.folder = folder;
    return options;
}

/// The diary that the program is about to open; none when it is in another folder.
std::vector<std::string> DiariesToOpen(Context& context)
{
    context.Folder();
    try {
        return {context.ChosenDiary()};
    } catch (const FileFailure&) {
        return {};
    }
}

/// Finds nothing when nothing has changed since a look about which there was nothing to say.
Look LookAt(const Start& start)
{
    const std::filesystem::path& folder = start.folder;
    std::ostringstream ignored;
    Terminal terminal{ignored, ignored, {}};
    Context context(OptionsFor(folder), terminal);
    const std::vector<std::string> diaries = DiariesToOpen(context);
    Look look;
    if (!diaries.empty()) {
        look.diary = diaries.front();
        look.state = StateOf(folder);
    }
    if (!look.state.empty() && look.state == start.memory.Of(kSilent, folder)) {
        return look;
    }
    for (FileReport& report : CheckDiaries(context, diaries, false)) {
        std::erase_if(report.findings, [&](const Finding& finding) { return IsHarmless(folder, finding); });
        std::move(report.findings.begin(), report.findings.end(), std::back_inserter(look.findings));
    }
    return look;
}

/// 2027-03-01 as 01/03/2027.
std::string DateOf(const std::string& iso)
{
    return iso.size() < 10 ? iso : iso.substr(8, 2) + "/" + iso.substr(5, 2) + "/" + iso.substr(0, 4);
}

std::string LineOf(const Finding& finding, const std::string& diary)
{
    std::string place = finding.file == DiaryFile(diary) ? "" : finding.file;
    const auto add = [&](const std::string& part) { place += (place.empty() || part.empty() ? "" : ", ") + part; };
    add(DateOf(finding.day));
    add(finding.field);
    if (finding.day.empty() && finding.line > 0) {
        add(Tools::Tr("riga %1", finding.line));
    }
    const std::string hint = Tools::Tr("%1 (soltanto con --sovrascrivi)", "");
    std::string text = finding.text;
    if (text.ends_with(hint)) {
        text = Tools::Tr("%1, se lo si vuole: negli strumenti", text.substr(0, text.size() - hint.size()));
    }
    return place + ": " + text;
}

std::string TextOf(const Look& look)
{
    std::vector<std::string> lines;
    for (const Finding& finding : look.findings) {
        lines.push_back(LineOf(finding, look.diary));
    }
    std::string text = (look.diary.empty() ? Tools::Tr("C'è qualcosa che non va:")
                                           : Tools::Tr("Nel diario «%1» c'è qualcosa che non va:", look.diary)) +
                       "\n\n";
    text += PointsOf(lines);
    if (const std::size_t sure = look.Count(Remedy::Sure); sure > 0) {
        text +=
            "\n" + Tools::Tr("«Ripara» ne mette a posto %1 su %2; i file di prima restano in una copia di sicurezza.",
                             sure, look.findings.size());
    }
    return text;
}

/// Identifies the findings in the memory.
std::string DigestOf(const Look& look)
{
    std::string all;
    for (const Finding& finding : look.findings) {
        all += finding.file + '\n' + finding.day + '\n' + finding.field + '\n' + finding.text + '\n';
    }
    return std::to_string(look.findings.size()) + "-" + std::to_string(std::hash<std::string>()(all));
}

/// Mends the files that are looked at at a start, no others. True when another diary is to be opened then.
bool Mend(Start& start, const std::string& diary)
{
    std::ostringstream said;
    Terminal terminal{said, said, {}};
    const auto failure = FailureOf([&] {
        Context context(OptionsFor(start.folder), terminal);
        MendFiles(context, CheckDiaries(context, DiariesToOpen(context), false));
    });
    const Look after = failure ? Look() : LookAt(start);
    if (!failure && after.diary != diary) {
        return true;
    }
    if (failure || after.Count(Remedy::Sure) > 0) {
        start.speaker.tell(Tools::Tr("La riparazione non è riuscita; il diario si apre lo stesso.") + "\n" +
                           said.str() + (failure ? *failure + "." : ""));
    } else {
        start.memory.Note(kFaultsNote, start.folder, after.findings.empty() ? "" : DigestOf(after));
    }
    return false;
}

} // namespace

void CheckPresentDiary(Start& start)
{
    for (;;) {
        const Look look = LookAt(start);
        const bool sure = look.Count(Remedy::Sure) > 0;
        const std::string digest = look.findings.empty() ? "" : DigestOf(look);
        if (look.findings.empty() || (!sure && start.memory.Of(kFaultsNote, start.folder) == digest)) {
            start.memory.Note(kSilent, start.folder, look.state);
            return;
        }
        const std::string mend = Tools::Tr("Ripara");
        const std::string tools = Tools::Tr("Strumenti…");
        const std::string open = Tools::Tr("Apri lo stesso");
        std::vector<std::string> buttons = {tools, open};
        if (sure) {
            buttons.insert(buttons.begin(), mend);
        }
        const auto answer = start.speaker.ask(
            TextOf(look), buttons,
            Tools::Tr("Il diario si apre lo stesso. Per ripararlo: zelvia-strumenti --cartella «%1» ripara",
                      start.folder));
        const std::string chosen = answer ? buttons[*answer] : open;
        start.memory.Note(kFaultsNote, start.folder, digest);
        if (chosen == tools) {
            start.memory.Note(kFaultsNote, start.folder, "");
            start.speaker.openTools(start.folder);
        } else if (chosen != mend || !Mend(start, look.diary)) {
            return;
        }
    }
}

} // namespace zelvia
