// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

/// The grid of the race calendar's window: its columns in the order of Enter.
namespace zelvia::CalendarGrid
{

inline constexpr int kRows = 20;
inline constexpr int kPages = 5;

enum class RaceColumn {
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
    RisultatoCat
};

inline constexpr std::size_t kColumns = 14;

constexpr std::size_t IndexOf(RaceColumn column)
{
    return static_cast<std::size_t>(column);
}

} // namespace zelvia::CalendarGrid
