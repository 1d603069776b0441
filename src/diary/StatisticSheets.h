// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"
#include "diary/CategoryStatistics.h"

#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace zelvia
{

/// A value of a statistic and the number of its days.
struct StatisticSheetSlot {
    Text value; ///< As it is printed; empty when the slot is not filled.
    i16 count;
};

/// A number as the sheet of a statistic shows it: with a blank or minus sign before it and a blank after it.
Text StatisticSheetNumber(i16 value);

/// The sheet of a statistic: up to 60 slots, in two columns of 30.
Sheet StatisticSheet(CalendarDate date, TextView title, std::span<const StatisticSheetSlot> slots);

/// What the window of the searches shows.
struct SearchSheetTexts {
    CalendarDate date;
    std::array<Text, 3> start; ///< Day, month and year as typed.
    std::array<Text, 3> end;
    std::array<Text, kAllCategories.size()> criteria;
    std::vector<Text> lines; ///< The lines of the runs found.
    /// Runs, kilometres, times, average.
    std::array<Text, 4> totals;
};

/// The sheet of a search, over as many pages as its runs take.
Sheet SearchSheet(const SearchSheetTexts& search);

/// The sheet of a chart, whose picture `copy` puts on the clipboard.
Sheet ChartSheet(CalendarDate date, std::function<void()> copy);

} // namespace zelvia
