// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteTotals.h"

#include "core/Conversions.h"
#include "diary/RouteModel.h"

#include <numeric>

namespace zelvia
{

using namespace Module1;

i32 SommaTratti(std::span<const i32> tratti)
{
    return std::accumulate(tratti.begin(), tratti.end(), i32(0));
}

LunghezzaPercorso Lunghezza(i32 km, i32 metri)
{
    constexpr int metresPerKm = 1000;
    if (metri < metresPerKm) {
        return {km, metri};
    }
    const i32 interi = metri.value() / metresPerKm;
    return {km + interi, metri - interi * metresPerKm};
}

std::optional<i16> PostoPercorso(TextView nome)
{
    bool free = false;
    for (i16 i = 1; i <= PerPercorso<Text>::kLast; i += 1) {
        if (SameText(NomiPercorso[i], nome)) {
            return i;
        }
        free = free || NomiPercorso[i].empty();
    }
    return free ? std::optional<i16>(0) : std::nullopt;
}

i16 PrimoPostoLibero()
{
    for (i16 i = 1; i <= PerPercorso<Text>::kLast; i += 1) {
        if (NomiPercorso[i].empty()) {
            return i;
        }
    }
    return 0;
}

} // namespace zelvia
