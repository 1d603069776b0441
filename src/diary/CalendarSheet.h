// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <array>

/// The grid of the race calendar's window: its columns in the order of Enter.
namespace zelvia::CalendarGrid
{

inline constexpr int kRows = 20;
inline constexpr int kPages = 5;

enum RaceColumn {
    Giorno,
    Mese,
    Anno,
    Gara,
    Localita,
    Km,
    Metri,
    Partecipanti,
    Risultato,
    Ore,
    Minuti,
    Secondi,
    Categoria,
    RisultatoCat,
    kColumns
};

} // namespace zelvia::CalendarGrid

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
