// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "routes/RouteTotals.h"

#include "core/Conversions.h"
#include "routes/RouteModel.h"

namespace zelvia
{

using namespace Module1;

LunghezzaPercorso SommaTratti(std::span<const i32> km, std::span<const i32> metri)
{
    const auto sum = [](std::span<const i32> parts) {
        i32 total = 0;
        for (const i32 part : parts) {
            total += part;
        }
        return total;
    };
    i32 totaleKm = sum(km);
    i32 totaleMetri = sum(metri);
    constexpr int metresPerKm = 1000;
    if (totaleMetri >= metresPerKm) {
        const i32 interi = totaleMetri.value() / metresPerKm;
        totaleKm += interi;
        totaleMetri -= interi * metresPerKm;
    }
    return {totaleKm, totaleMetri};
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
