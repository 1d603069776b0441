// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia::Module1
{

template <typename T>
using PlanColumn = BoundedArray<T, 0, 31>;

// The table in memory: fifteen columns of rows 1..31 and a start date. Row 0 stays zero and empty.
// 0 and the empty text mean that nothing is planned.
inline PlanColumn<i16> TabGiorno;         ///< Row number.
inline PlanColumn<i16> TabKm;             ///< Distance, whole kilometres.
inline PlanColumn<i16> TabMetri;          ///< Metres beyond them, 0..999.
inline PlanColumn<i16> TabOre;            ///< Time, hours 0..24.
inline PlanColumn<i16> TabMinuti;         ///< Minutes 0..59.
inline PlanColumn<i16> TabSecondi;        ///< Seconds 0..59.
inline PlanColumn<i16> TabMediaMinuti;    ///< Average per kilometre, minutes 0..60.
inline PlanColumn<i16> TabMediaSecondi;   ///< Seconds 0..59.
inline PlanColumn<i16> TabMediaMillesimi; ///< Thousandths of a second, 0..999; never compared.
inline PlanColumn<Text> TabAndatura;      ///< Pace class.
inline PlanColumn<Text> TabFondo;         ///< Terrain.
inline PlanColumn<i16> TabRipetVolte;     ///< Repetitions: how many times.
inline PlanColumn<i16> TabRipetDistanza;  ///< Distance of each, metres 0..9999.
inline PlanColumn<i16> TabRipetQuante;    ///< Time of each, minutes 0..60.
inline PlanColumn<i16> TabRipetTempi;     ///< Seconds 0..59.
inline CalendarDate TabDataInizio;        ///< Start date of the table in memory.

/// Makes the table in memory blank, its start date the placeholder 01/01/2007.
void AzzeraTabella();

/// Writes the table in memory to `path`, 466 values. Reports its own failure, and returns false; the file may then be
/// half written.
bool ScriviTabella(TextView path);

/// Reads `path` into the table in memory, by position only. Reports its own failure; what was read is kept.
void LeggiTabella(TextView path);

} // namespace zelvia::Module1
