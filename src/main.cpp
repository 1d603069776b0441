// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"
#include "core/Files.h"
#include "diary/CommandLine.h"
#include "diary/ProgramFiles.h"
#include "toolkit/Application.h"
#include "windows/page/FrmMain.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
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

/// Qt takes its own options, such as -platform and -session, out of the command line.
bool MayBeOfQt(std::string_view word)
{
    return word.starts_with('-') && !word.starts_with("--");
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
    if (application == nullptr) {
        application = std::make_unique<const Application>(argc, argv);
    }
    if (toBeLaid && !LayProgramFolder(ProgramFolder())) {
        return kMisused;
    }
    auto* page = new frmMain;
    if (!page->FormLoad()) {
        return 0;
    }
    page->show();
    return QCoreApplication::exec();
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
