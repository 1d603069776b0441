// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
