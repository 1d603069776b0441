// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"
#include "core/Text.h"

#include <array>
#include <cstddef>
#include <vector>

namespace zelvia
{

/// The six boxes of a search's period, in the order of their places on the window.
namespace PeriodBox
{
enum Box : std::size_t { GiornoInizio, MeseInizio, AnnoInizio, GiornoFine, MeseFine, AnnoFine };
inline constexpr std::size_t kBoxes = 6;
} // namespace PeriodBox

using PeriodEntries = std::array<Text, PeriodBox::kBoxes>;

/// A correction made before a search, and its message.
struct PeriodCorrection {
    const Message* message;
    PeriodBox::Box box;
    TextView value;

    friend bool operator==(const PeriodCorrection&, const PeriodCorrection&) = default;
};

struct PeriodCheck {
    std::vector<PeriodCorrection> corrections; ///< In the order in which they are reported.
    bool reversed = false;                     ///< The end is before the start: nothing is searched.
};

/// Checks the dates of a search. A date counts as begun when any of its boxes holds 1 or more; 29 February is invalid
/// in every year, and the earliest year is 2007. The order of the two dates is tested without their years, and only
/// when the start has a day. Raises error 6 on a number beyond a double.
PeriodCheck CheckPeriod(PeriodEntries texts);

} // namespace zelvia
