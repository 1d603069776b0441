// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "tools/years/DiaryYear.h"

#include <vector>

namespace zelvia::test
{

/// A run without a route.
inline DiaryDay RunOf(CalendarDate date, int metres, int seconds = 0)
{
    return {date, {}, metres, seconds, 0, true, false};
}

/// The same on a route.
inline DiaryDay RunOn(CalendarDate date, TextView route, int metres, int seconds)
{
    return {date, Text(route), metres, seconds, 0, true, false};
}

inline DiaryDay WeightOf(CalendarDate date, int kilograms)
{
    return {date, {}, 0, 0, kilograms, false, false};
}

} // namespace zelvia::test
