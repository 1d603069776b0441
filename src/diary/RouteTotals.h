// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <optional>
#include <span>

namespace zelvia
{

inline constexpr TextView kTooManyRoutes = " DESCRIZIONE MAX PER 200 PERCORSI ";

/// The length of a route.
struct RouteLength {
    i32 km;
    i32 metres; ///< Below 1000.
};

/// Adds up the kilometres, or the metres, of the stretches. Raises error 6 when the sum is out of range.
i32 SumOfStretches(std::span<const i32> stretches);

/// Carries whole thousands of metres over to the kilometres. Raises error 6 when these are out of range.
RouteLength LengthOf(i32 km, i32 metres);

/// The place of a route's name among the descriptions, case ignored: 0 when it has none but a place is free, nothing
/// when all 200 are taken. The empty name is that of the first free place.
std::optional<i16> RoutePlace(TextView name);

/// The lowest free place, 0 when there is none.
i16 LowestFreePlace();

} // namespace zelvia
