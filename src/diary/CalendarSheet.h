// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"
#include "diary/CalendarGrid.h"

#include <array>

namespace zelvia
{

/// The boxes of a row of the calendar, in the order of the grid.
using CalendarSheetRow = std::array<Text, CalendarGrid::kColumns>;

/// The texts on a page of the calendar window.
struct CalendarSheetTexts {
    CalendarDate date;
    Text title;
    std::array<CalendarSheetRow, CalendarGrid::kRows> rows;
};

/// The sheet of a page of the race calendar.
Sheet CalendarSheet(const CalendarSheetTexts& page);

} // namespace zelvia
