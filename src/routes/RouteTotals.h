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
struct LunghezzaPercorso {
    i32 km;
    i32 metri; ///< 0..999
};

/// Adds up stretches of kilometres and metres; whole thousands of metres go over to the kilometres.
/// Raises error 6 when a sum is out of range.
LunghezzaPercorso SommaTratti(std::span<const i32> km, std::span<const i32> metri);

/// The place of a route's name among the descriptions, case ignored: 0 when it has none but a place is free, nothing
/// when all 200 are taken. The empty name is that of the first free place.
std::optional<i16> PostoPercorso(TextView nome);

/// The lowest free place, 0 when there is none.
i16 PrimoPostoLibero();

} // namespace zelvia
