// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Files.h"
#include "toolkit/Application.h"
#include "windows/page/FrmMain.h"

int main(int argc, char* argv[])
{
    zelvia::Application application(argc, argv);
    zelvia::SetProgramFolder(zelvia::SystemPath(QCoreApplication::applicationDirPath().toStdString()));
    auto* page = new zelvia::frmMain;
    if (!page->FormLoad()) {
        return 0;
    }
    page->show();
    return QCoreApplication::exec();
}
