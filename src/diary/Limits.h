// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/Messages.h"

/// How far the boxes of dates, times and counts go.
namespace zelvia::Limits
{

inline constexpr Limit kNone{};
inline constexpr Limit kDay{31, &Messages::kDayLimit};
inline constexpr Limit kMonth{12, &Messages::kMonthLimit};
inline constexpr Limit kYear{2099, &Messages::kYearLimit};
inline constexpr Limit kHours{24, &Messages::kHoursLimit};
inline constexpr Limit kMinutes{59, &Messages::kMinutesLimit};
inline constexpr Limit kPaceMinutes{60, &Messages::kPaceMinutesLimit};
inline constexpr Limit kSeconds{59, &Messages::kSecondsLimit};
inline constexpr Limit kRepetitionMetres{9999, &Messages::kRepetitionLimit};
inline constexpr Limit kRunners{999999, &Messages::kRunnersLimit};

} // namespace zelvia::Limits
