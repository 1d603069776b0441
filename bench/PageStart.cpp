// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own start, on the program folder given, up to the first painted page.
#include "bench/FirstPaint.h"
#include "bench/PageCount.h"
#include "core/Files.h"
#include "toolkit/Application.h"
#include "windows/page/FrmMain.h"

int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 2;
    }
    zelvia::Application application(argc, argv);
    zelvia::SetProgramFolder(zelvia::SystemPath(argv[1]));
    auto* page = new zelvia::frmMain;
    if (!page->FormLoad()) {
        return 1;
    }
    page->show();
    const zelvia::bench::FirstPaint firstPaint(*page, zelvia::bench::ControlsOf(*page));
    return QCoreApplication::exec();
}
