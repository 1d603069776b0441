// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <vector>

namespace zelvia
{

/// What a line of a file holds.
enum class ValueKind { Quoted, Short, Long, Stamp };

constexpr ValueKind KindOf(const Text& /*value*/)
{
    return ValueKind::Quoted;
}
constexpr ValueKind KindOf(i16 /*value*/)
{
    return ValueKind::Short;
}
constexpr ValueKind KindOf(i32 /*value*/)
{
    return ValueKind::Long;
}
constexpr ValueKind KindOf(CalendarDate /*value*/)
{
    return ValueKind::Stamp;
}

// The lines of each file, in their order. A calendar and a table have fifteen for each row, the table one more for its
// start date; the routes 62 for each route.
std::vector<ValueKind> CalendarForm();
std::vector<ValueKind> RoutesForm();
std::vector<ValueKind> TableForm();

} // namespace zelvia
