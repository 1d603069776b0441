// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

/// How far the boxes of dates, times and counts go.
namespace zelvia::Limits
{

inline constexpr Limit kNone{};
inline constexpr Limit kDay{31, "MAX 31 GIORNI                 "};
inline constexpr Limit kMonth{12, "MAX 12 MESI                   "};
inline constexpr Limit kYear{2099, "MAX ANNO 2099                 "};
inline constexpr Limit kHours{24, "MAX 24 ORE                "};
inline constexpr Limit kMinutes{59, "MAX 59 MINUTI                "};
inline constexpr Limit kPaceMinutes{60, "MAX 60 MINUTI                 "};
inline constexpr Limit kSeconds{59, "MAX 59 SECONDI                "};
inline constexpr Limit kRepetitionMetres{9999, "MAX 9.999                   "};
inline constexpr Limit kRunners{999999, "MAX 999.999                   "};

} // namespace zelvia::Limits
