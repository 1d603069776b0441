// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the tools: zelvia-finestra [--cartella CARTELLA] [--diario NOME] [--pagina AZIONE], which
// zelvia-strumenti starts when it is asked for no action.
#include "toolkit/Application.h"
#include "toolkit/SessionEnd.h"
#include "tools/desk/Desk.h"
#include "tools/desk/DeskWindow.h"
#include "tools/desk/GuideFile.h"
#include "tools/strumenti/Arguments.h"
#include "tools/yearswindow/YearsWindow.h"
#include "translation/Translation.h"

#include <csignal>
#include <iostream>

namespace
{

using namespace zelvia;

int ShowWindow(const CommandWords& words)
{
    Desk desk(words.options.folder.empty() ? HomesFolder() : ResolvedFolder(words.options.folder),
              words.options.diary.value_or(""));
    desk.OpenAllYears = OpenAllYears;
    // The key in the window over all years. That of the tools knows its pages.
    HelpViewer guide;
    Application::Instance().HelpKey = [&](const QString& topic) { OpenGuide(guide, desk.Folder(), topic); };
    DeskWindow window(desk, words.options.page);
    window.show();
    const SessionEnd end(window);
    return Application::exec();
}

int Run(int argc, char* argv[])
{
    const Application application(argc, argv);
    InstallTranslation();
    Application::setDesktopFileName(QStringLiteral("zelvia"));
    return Application::End(ShowWindow(SortWords({argv + 1, argv + argc})));
}

} // namespace

int main(int argc, char* argv[])
{
    // A file that may grow no further is an error like any other, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const Misuse& misuse) {
        std::cerr << misuse.text << "\n";
        return kMisused;
    }
}
