// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/DeskPage.h"

#include <span>
#include <string_view>

namespace zelvia
{

/// A page that the window may have.
struct PageRow {
    /// The action behind it, which is the page's name too. Without such an action there is no page.
    std::string_view action;
    const char* title; ///< In the list, to be translated in the context "DeskPages".
    DeskPage* (*make)(Desk& desk);
};

/// All pages, in the order of the list.
std::span<const PageRow> PageRows();

DeskPage* MakeNewYearPage(Desk& desk);
DeskPage* MakeYearsPage(Desk& desk);
DeskPage* MakeCheckPage(Desk& desk);
DeskPage* MakeJournalPage(Desk& desk);
DeskPage* MakeCopiesPage(Desk& desk);
DeskPage* MakeMergePage(Desk& desk);
DeskPage* MakeImportPage(Desk& desk);
DeskPage* MakeExportPage(Desk& desk);
DeskPage* MakeBookPage(Desk& desk);

} // namespace zelvia
