// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia::Module1
{

template <typename T>
using RaceValues = BoundedArray<T, 0, 100>;

// The race calendar: fifteen columns of rows 1..100; row 0 is never used. A row holds a race when GiornoGara is above
// 0.
extern RaceValues<i16> NumeroGara;   ///< Row number.
extern RaceValues<i16> GiornoGara;   ///< Day of the month, 0 when the row is free.
extern RaceValues<i16> MeseGara;     ///< Month 1..12.
extern RaceValues<i16> AnnoGara;     ///< Year, four digits.
extern RaceValues<Text> Gara;        ///< Name.
extern RaceValues<Text> Localita;    ///< Place.
extern RaceValues<i16> KmGara;       ///< Distance, kilometres.
extern RaceValues<i16> MetriGara;    ///< Metres beyond them.
extern RaceValues<i32> Partecipanti; ///< Number of runners.
extern RaceValues<i32> Risultato;    ///< Placing overall.
extern RaceValues<i16> OreGara;      ///< Finishing time, hours.
extern RaceValues<i16> MinutiGara;   ///< Minutes.
extern RaceValues<i16> SecondiGara;  ///< Seconds.
extern RaceValues<Text> Categoria;   ///< Age or class category, such as S50.
extern RaceValues<i32> RisultatoCat; ///< Placing in the category.

/// Blanks all rows, each keeping its number.
void AzzeraCalendario();

/// Reads the calendar file of CartellaDiario into the columns. Reports its own failure; what was read is kept.
void LeggiCalendario();

/// Writes the 100 rows to the calendar file of CartellaDiario. Reports its own failure.
void ScriviCalendario();

} // namespace zelvia::Module1
