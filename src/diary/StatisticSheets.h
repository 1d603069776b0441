// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace zelvia
{

/// A value of a statistic and the number of its days.
struct StatisticSheetSlot {
    Text valore; ///< As it is printed; empty when the slot is not filled.
    i16 conta;
};

/// A number as the sheet of a statistic shows it: with a blank or minus sign before it and a blank after it.
Text StatisticSheetNumber(i16 valore);

/// The sheet of a statistic: up to 60 slots, in two columns of 30.
Sheet StatisticSheet(CalendarDate data, TextView titolo, std::span<const StatisticSheetSlot> categorie);

/// What the window of the searches shows.
struct SearchSheetTexts {
    CalendarDate data;
    std::array<Text, 3> inizio; ///< Day, month and year as typed.
    std::array<Text, 3> fine;
    /// Route, length, distance, pace, terrain, kind, season, weather, temperature, runners, weight, repetitions.
    std::array<Text, 12> condizioni;
    std::vector<Text> righe; ///< The lines of the runs found.
    /// Runs, kilometres, times, average.
    std::array<Text, 4> totali;
};

/// The sheet of a search, over as many pages as its runs take.
Sheet SearchSheet(const SearchSheetTexts& ricerca);

/// The sheet of a chart, whose picture `copia` puts on the clipboard.
Sheet ChartSheet(CalendarDate data, std::function<void()> copia);

} // namespace zelvia
