// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia::Module1
{

template <typename T>
using PerRoute = BoundedArray<T, 0, 200>;
template <typename T>
using PerStretch = PerRoute<BoundedArray<T, 0, 20>>;

// The descriptions of routes 1..200, each of stretches 1..20. Place 0 is not in the file: it takes what has no place.
extern PerRoute<Text> NomiPercorso;        ///< Name; empty means the place is free.
extern PerRoute<i32> DistanzePercorso;     ///< Length of the whole route, metres.
extern PerStretch<Text> TrattoDescrizione; ///< Text of a stretch.
extern PerStretch<i32> TrattoKm;           ///< Its kilometres.
extern PerStretch<i32> TrattoMetri;        ///< Its metres beyond them.

/// Blanks all routes 1..200.
void AzzeraPercorsi();

/// Blanks one route, 0..200.
void AzzeraPercorso(i16 numero);

/// Writes routes 1..200 to the route file of CartellaDiario. Reports its own failure.
void SalvaPercorsi();

/// Reads the route file of CartellaDiario. Any failure, a missing file too, is reported by its description alone with
/// the name of the file behind it; what was read is kept.
void CaricaPercorsi();

} // namespace zelvia::Module1
