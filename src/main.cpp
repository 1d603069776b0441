// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"
#include "core/Files.h"
#include "core/StateFolder.h"
#include "diary/CommandLine.h"
#include "diary/Journal.h"
#include "diary/ProgramFiles.h"
#include "diary/Workspace.h"
#include "toolkit/Application.h"
#include "toolkit/PageTurn.h"
#include "toolkit/SessionEnd.h"
#include "windows/page/FrmMain.h"

#include <QSysInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace
{

using namespace zelvia;

constexpr int kMisused = 2;

void Say(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

/// Tells the program its folder. True when that has to be laid: the executable's own is taken as it is.
bool ChooseFolder(const CommandLine& line)
{
    const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const char* home = std::getenv("HOME");
    SetProgramFolder(ChooseProgramFolder(line.folder.value_or(""), own, home != nullptr ? home : ""));
    SetShareFolder(ShareFolder(own));
    if (ProgramFolder().empty()) {
        throw WrongUsage{"La cartella personale non è nota (HOME): indicare una CARTELLA."};
    }
    return line.folder || ProgramFolder() != SystemPath(own.string());
}

/// A path without the name of who uses the computer, whose home or stick it may be in.
std::string Impersonal(const std::filesystem::path& path)
{
    const char* home = std::getenv("HOME");
    std::filesystem::path own = home != nullptr ? home : "";
    if (!own.has_filename()) {
        own = own.parent_path();
    }
    const auto [end, below] = std::mismatch(own.begin(), own.end(), path.begin(), path.end());
    const bool inHome = own.has_filename() && end == own.end();
    std::filesystem::path told = inHome ? "~" : "";
    for (auto part = inHome ? below : path.begin(); part != path.end(); ++part) {
        told /= *part == own.filename() ? "UTENTE" : *part;
    }
    return told.string();
}

/// What a report of a fault should tell.
std::string Information()
{
    const auto folder = [](const Text& path) { return path.empty() ? "-" : Impersonal(NativePath(path)); };
    return "Zelvia " ZELVIA_VERSION "\nQt " + std::string(qVersion()) + " (compilato con " QT_VERSION_STR ")\n" +
           QSysInfo::prettyProductName().toStdString() + ", " + QSysInfo::currentCpuArchitecture().toStdString() +
           "\nSchermo: " + qEnvironmentVariable("XDG_SESSION_TYPE", QStringLiteral("-")).toStdString() +
           "\nCartella del programma: " + folder(ProgramFolder()) +
           "\nFile installati: " + folder(InstalledFile("Guida.hlp")) + "\nStato: " + Impersonal(StateFolder()) + "\n";
}

/// One that is not there would be a blank year.
void ChooseDiary(const std::string& name)
{
    const Text path = ProgramFolder() + "\\" + Text(kDiaryFolder) + "\\" + SystemPath(name) + ".zlv";
    if (!std::filesystem::is_regular_file(NativePath(path))) {
        throw WrongUsage{"Il diario «" + name + "» non c'è."};
    }
    SetStartDiary(path);
}

/// Qt takes its own options, such as -platform and -session, out of the command line.
bool MayBeOfQt(std::string_view word)
{
    return word.starts_with('-') && !word.starts_with("--");
}

int ShowPage(bool toBeLaid)
{
    if (toBeLaid && !LayProgramFolder(ProgramFolder())) {
        return kMisused;
    }
    Journal::Instance().Begin();
    auto* page = new frmMain;
    if (!page->FormLoad()) {
        return 0;
    }
    PageTurn::Allow(true);
    page->show();
    const SessionEnd end(*page);
    const int status = QCoreApplication::exec();
    Journal::Instance().End();
    return status;
}

int Run(int argc, char* argv[])
{
    std::unique_ptr<const Application> application;
    if (std::any_of(argv + 1, argv + argc, MayBeOfQt)) {
        application = std::make_unique<const Application>(argc, argv);
    }
    const CommandLine line = ReadCommandLine(std::span(argv + 1, argv + argc));
    if (line.help) {
        Say(stdout, kUsage);
        return 0;
    }
    if (line.today) {
        SetClock([today = *line.today] { return today; });
    }
    const bool toBeLaid = ChooseFolder(line);
    if (line.information) {
        Say(stdout, Information());
        return 0;
    }
    if (line.diary) {
        ChooseDiary(*line.diary);
    }
    if (application == nullptr) {
        application = std::make_unique<const Application>(argc, argv);
    }
    return Application::End(ShowPage(toBeLaid));
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        return Run(argc, argv);
    } catch (const WrongUsage& wrong) {
        Say(stderr, wrong.reason + "\n" + std::string(kUsage));
        return kMisused;
    }
}
