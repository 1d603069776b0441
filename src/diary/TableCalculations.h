// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <optional>

namespace zelvia
{

/// A row's distance, time and average per kilometre as its boxes hold them; an empty box counts as 0.
struct RowGroups {
    Text km;
    Text metres;
    Text hours;
    Text minutes;
    Text seconds;
    Text averageMinutes;
    Text averageSeconds;
    Text averageThousandths;
};

/// Average minutes, seconds and thousandths, the last as text with two decimals.
struct RowAverage {
    i16 minutes;
    i16 seconds;
    Text thousandths;
};

struct RowDistance {
    i32 km;
    i32 metres;
};

struct RowTime {
    i32 hours;
    i32 minutes;
    i32 seconds;
};

// When each of the three is to be computed; the tests follow one another, each seeing what the one before wrote.
bool AsksForAverage(const RowGroups& row);
bool AsksForTime(const RowGroups& row);
bool AsksForDistance(const RowGroups& row);

/// True when exactly one of the three groups is given; the average counts only with both minutes and seconds.
bool OnlyOneGroup(const RowGroups& row);

/// The average from distance and time; nothing when it is 61 minutes or more. Raises error 6 or 11 when one of them is
/// 0, 6 when a number is out of range.
std::optional<RowAverage> AverageFrom(const RowGroups& row);

/// The distance from time and average. Raises as AverageFrom.
RowDistance DistanceFrom(const RowGroups& row);

/// The time from distance and average; hours can be above 24. Raises error 6 when a number is out of range.
RowTime TimeFrom(const RowGroups& row);

} // namespace zelvia
