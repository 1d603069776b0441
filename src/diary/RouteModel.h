// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <optional>

namespace zelvia::Module1
{

template <typename T>
using PerRoute = BoundedArray<T, 0, 200>;
template <typename T>
using PerStretch = PerRoute<BoundedArray<T, 0, 20>>;

// The descriptions of routes 1..200, each of stretches 1..20. Place 0 is not in the file: it takes what has no place.
inline PerRoute<Text> NomiPercorso;        ///< Name; empty means the place is free.
inline PerRoute<i32> DistanzePercorso;     ///< Length of the whole route, metres.
inline PerStretch<Text> TrattoDescrizione; ///< Text of a stretch.
inline PerStretch<i32> TrattoKm;           ///< Its kilometres.
inline PerStretch<i32> TrattoMetri;        ///< Its metres beyond them.

inline constexpr int kStretches = 20;

/// Hands the 62 values of a route to `visit`, in the order of the file.
template <typename Visitor>
void VisitRoute(int route, Visitor&& visit)
{
    visit(NomiPercorso[route]);
    visit(DistanzePercorso[route]);
    for (int stretch = 1; stretch <= kStretches; ++stretch) {
        visit(TrattoDescrizione[route][stretch]);
        visit(TrattoKm[route][stretch]);
        visit(TrattoMetri[route][stretch]);
    }
}

/// Blanks all routes 1..200.
void AzzeraPercorsi();

/// Blanks one route, 0..200.
void AzzeraPercorso(i16 number);

/// Writes routes 1..200 to the route file of CartellaDiario. Reports its own failure.
void SalvaPercorsi();

/// Reads the route file of CartellaDiario. Any failure, a missing file too, is reported by its description alone with
/// the name of the file after it; what was read is kept.
void CaricaPercorsi();

} // namespace zelvia::Module1

namespace zelvia
{

/// The length of a route.
struct RouteLength {
    i32 km;
    i32 metres; ///< Below 1000.
};

/// Carries whole thousands of metres over to the kilometres. Raises error 6 when these are out of range.
RouteLength LengthOf(i32 km, i32 metres);

/// The place of a route's name among the descriptions, case ignored: 0 when it has none but a place is free, nothing
/// when all 200 are taken. The empty name is that of the first free place.
std::optional<i16> RoutePlace(TextView name);

/// The lowest free place, 0 when there is none.
i16 LowestFreePlace();

} // namespace zelvia
