// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteTotals.h"

#include "core/Conversions.h"
#include "diary/RouteModel.h"

#include <numeric>

namespace zelvia
{

using namespace Module1;

i32 SumOfStretches(std::span<const i32> stretches)
{
    return std::accumulate(stretches.begin(), stretches.end(), i32(0));
}

RouteLength LengthOf(i32 km, i32 metres)
{
    constexpr int metresPerKm = 1000;
    if (metres < metresPerKm) {
        return {km, metres};
    }
    const i32 whole = metres.value() / metresPerKm;
    return {km + whole, metres - whole * metresPerKm};
}

std::optional<i16> RoutePlace(TextView name)
{
    bool free = false;
    for (i16 i = 1; i <= PerRoute<Text>::kLast; i += 1) {
        if (SameText(NomiPercorso[i], name)) {
            return i;
        }
        free = free || NomiPercorso[i].empty();
    }
    return free ? std::optional<i16>(0) : std::nullopt;
}

i16 LowestFreePlace()
{
    for (i16 i = 1; i <= PerRoute<Text>::kLast; i += 1) {
        if (NomiPercorso[i].empty()) {
            return i;
        }
    }
    return 0;
}

} // namespace zelvia
