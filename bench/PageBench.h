// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/BareWindow.h"
#include "bench/Measure.h"
#include "bench/PageCount.h"
#include "bench/PaintWatch.h"
#include "core/Files.h"
#include "diary/Workspace.h"
#include "toolkit/Application.h"
#include "windows/page/FrmMain.h"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace zelvia::bench
{

/// The page, its baseline and the day's arrow, both windows painted.
struct ShownPage {
    explicit ShownPage(frmMain& page) : onPage(*page.lblData), onBare(bare), arrow(*page.upGiorno)
    {
        page.show();
        page.lblData_Click();
        onPage.Wait();
        FillBareWindow(bare, ControlsOf(page), page.size());
        // Below the page: an X server does not paint a window that another one covers.
        bare.move(0, page.height());
        bare.show();
        onBare.Wait();
    }

    double RepaintBare()
    {
        return MillisecondsOf([this] {
            bare.update();
            onBare.Wait();
        });
    }

    QWidget bare;
    PaintWatch onPage;
    PaintWatch onBare;
    UpDown& arrow;
    const QPointF up{arrow.width() / 2.0, arrow.height() / 4.0};
    const QPointF down{arrow.width() / 2.0, arrow.height() * 3 / 4.0};
};

/// The shown window of that kind; ends the program when there is none.
template <typename Window>
Window& Shown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window != nullptr && window->isVisible()) {
            return *window;
        }
    }
    std::cerr << "a window did not open\n";
    std::exit(1);
}

/// The main function of a program that measures on the page: it takes the platform's name for the table and the program
/// folder with a diary. `prepare` gets the folder before the page is loaded, and what it returns lives as long as the
/// page; `measure` gets the page and the platform's name.
template <typename Prepare, typename Measure>
int RunOnPage(int argc, char* argv[], Prepare&& prepare, Measure&& measure)
{
    if (argc < 3) {
        return 2;
    }
    Application application(argc, argv);
    SetProgramFolder(SystemPath(argv[2]));
    [[maybe_unused]] const auto prepared = prepare(argv[2]);
    frmMain page;
    if (!page.FormLoad()) {
        return 1;
    }
    measure(page, argv[1]);
    return 0;
}

template <typename Measure>
int RunOnPage(int argc, char* argv[], Measure&& measure)
{
    return RunOnPage(
        argc, argv, [](const char*) { return nullptr; }, std::forward<Measure>(measure));
}

} // namespace zelvia::bench
