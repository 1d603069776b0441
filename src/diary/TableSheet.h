// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <array>

/// The grid of the table editor: its columns in the order of Enter.
namespace zelvia::TableGrid
{

inline constexpr int kRows = 31;

enum Column {
    Km,
    Metri,
    Ore,
    Minuti,
    Secondi,
    MediaMinuti,
    MediaSecondi,
    MediaMillesimi,
    Andatura,
    Fondo,
    RipetVolte,
    RipetDistanza,
    RipetQuante,
    RipetTempi,
    kColumns
};

} // namespace zelvia::TableGrid

namespace zelvia
{

/// The texts of the boxes of the table editor.
struct TableSheetTexts {
    CalendarDate date;
    Text title;
    /// Rows 1..31 at the indices 0..30, in the order of the grid's columns.
    std::array<std::array<Text, TableGrid::kColumns>, TableGrid::kRows> rows;
    /// Day, month and year of the start.
    std::array<Text, 3> start;
};

/// The sheet of a training table.
Sheet TableSheet(const TableSheetTexts& table);

} // namespace zelvia
