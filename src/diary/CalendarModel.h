// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia::Module1
{

inline constexpr int kRaces = 100;

template <typename T>
using RaceValues = BoundedArray<T, 0, kRaces>;

// The race calendar: fifteen columns of rows 1..100; row 0 is never used. A row holds a race when GiornoGara is above
// 0.
inline RaceValues<i16> NumeroGara;   ///< Row number.
inline RaceValues<i16> GiornoGara;   ///< Day of the month, 0 when the row is free.
inline RaceValues<i16> MeseGara;     ///< Month 1..12.
inline RaceValues<i16> AnnoGara;     ///< Year, four digits.
inline RaceValues<Text> Gara;        ///< Name.
inline RaceValues<Text> Localita;    ///< Place.
inline RaceValues<i16> KmGara;       ///< Distance, kilometres.
inline RaceValues<i16> MetriGara;    ///< Metres beyond them.
inline RaceValues<i32> Partecipanti; ///< Number of runners.
inline RaceValues<i32> Risultato;    ///< Placing overall.
inline RaceValues<i16> OreGara;      ///< Finishing time, hours.
inline RaceValues<i16> MinutiGara;   ///< Minutes.
inline RaceValues<i16> SecondiGara;  ///< Seconds.
inline RaceValues<Text> Categoria;   ///< Age or class category, such as S50.
inline RaceValues<i32> RisultatoCat; ///< Placing in the category.

/// Hands the fifteen values of a row to `visit`, in the order of the file.
template <typename Visitor>
void VisitRace(int row, Visitor&& visit)
{
    visit(NumeroGara[row]);
    visit(GiornoGara[row]);
    visit(MeseGara[row]);
    visit(AnnoGara[row]);
    visit(Gara[row]);
    visit(Localita[row]);
    visit(KmGara[row]);
    visit(MetriGara[row]);
    visit(Partecipanti[row]);
    visit(Risultato[row]);
    visit(OreGara[row]);
    visit(MinutiGara[row]);
    visit(SecondiGara[row]);
    visit(Categoria[row]);
    visit(RisultatoCat[row]);
}

/// Blanks all rows, each keeping its number.
void AzzeraCalendario();

/// Reads the calendar file of CartellaDiario into the columns. Reports its own failure; what was read is kept.
void LeggiCalendario();

/// Writes the 100 rows to the calendar file of CartellaDiario. Reports its own failure.
void ScriviCalendario();

/// What the day page shows of a race.
struct RaceTexts {
    Text name;
    Text place;
    Text runners;
    Text time;
    Text placing;
    Text category;
    Text categoryPlacing;
    Text length;
};

/// The texts of a row of the calendar, 1..100; any other raises error 9.
RaceTexts RaceTextsOf(i16 row);

} // namespace zelvia::Module1
