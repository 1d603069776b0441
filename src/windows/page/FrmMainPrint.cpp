// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The printed sheet of the day on the page.
#include "core/RunTimeError.h"
#include "toolkit/Printer.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

void frmMain::mnuFilePrint_Click()
{
    auto* entry = findChild<QAction*>(QStringLiteral("mnuFilePrint"));
    entry->setEnabled(false);
    Trap(kPrintErrors, [this] { PrintSheet(DaySheet(DayOnPage(*this).SheetTexts())); });
    entry->setEnabled(true);
}

} // namespace zelvia
