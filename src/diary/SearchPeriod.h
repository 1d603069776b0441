// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <array>
#include <cstddef>
#include <vector>

namespace zelvia
{

/// The six boxes of a search's period, in the order of their places on the window.
namespace CampoPeriodo
{
enum Campo : std::size_t { GiornoInizio, MeseInizio, AnnoInizio, GiornoFine, MeseFine, AnnoFine };
inline constexpr std::size_t kCampi = 6;
} // namespace CampoPeriodo

using TestiPeriodo = std::array<Text, CampoPeriodo::kCampi>;

/// A correction made before a search, and its message.
struct CorrezionePeriodo {
    TextView messaggio;
    CampoPeriodo::Campo campo;
    TextView valore;

    friend bool operator==(const CorrezionePeriodo&, const CorrezionePeriodo&) = default;
};

struct ControlloPeriodo {
    std::vector<CorrezionePeriodo> correzioni; ///< In the order in which they are reported.
    bool invertito = false;                    ///< The end is before the start: nothing is searched.
};

inline constexpr TextView kPeriodoInvertito = "DATA FINE MINORE DELLA DATA INIZIO                 ";

/// Checks the dates of a search. A date counts as begun when any of its boxes holds 1 or more; 29 February is invalid
/// in every year, and the earliest year is 2007. The order of the two dates is tested without their years, and only
/// when the start has a day. Raises error 6 on a number beyond a double.
ControlloPeriodo ControllaPeriodo(TestiPeriodo testi);

} // namespace zelvia
