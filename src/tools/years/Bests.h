// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "tools/years/DiaryYear.h"

#include <vector>

namespace zelvia
{

/// The pace of all runs of a route in a year that have a distance and a time.
struct RoutePace {
    Text route; ///< Routes that differ only in case are one, as it was first spelt.
    int year = 0;
    int runs = 0;
    long metres = 0;
    long seconds = 0;

    double SecondsPerKm() const { return static_cast<double>(seconds) * 1000 / static_cast<double>(metres); }
};

/// By the routes' names, each from its first year on. A day without a route is not among them.
std::vector<RoutePace> PacesByRoute(DaySpan days);

/// The best time of the runs of a distance or of a route.
struct BestTime {
    int metres = 0; ///< That of the best run.
    Text route;     ///< The same.
    int runs = 0;   ///< How many runs it is the best of.
    DiaryDay best;  ///< Of equal times the first.
};

/// The best times over each distance to the metre, from the shortest on.
std::vector<BestTime> BestsByDistance(DaySpan days);

/// The best times on each route, by their names; of each route over its usual distance, which is that in the middle of
/// all its runs', give or take a thirtieth. So a run that was broken off is no record.
std::vector<BestTime> BestsByRoute(DaySpan days);

/// The weights of a month.
struct MonthWeight {
    CalendarDate month; ///< Its first day.
    int days = 0;       ///< On which there is a weight.
    int lowest = 0;
    int highest = 0;
    double mean = 0;
};

/// Of each month that has one.
std::vector<MonthWeight> WeightsByMonth(DaySpan days);

} // namespace zelvia
