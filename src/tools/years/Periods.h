// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "tools/years/AllDiaries.h"
#include "tools/years/DiaryYear.h"

#include <compare>
#include <vector>

namespace zelvia
{

/// What was run in a stretch of time.
struct PeriodTotal {
    int number = 0; ///< The week 1..53, the month 1..12, or the year.
    CalendarDate first;
    CalendarDate last;
    long metres = 0;
    int runs = 0; ///< Races among them.
    int races = 0;
};

/// A week from Monday to Sunday as ISO 8601 counts them: week 1 has the year's first Thursday, so that the days around
/// New Year may belong to a week of the other year.
struct IsoWeek {
    int year = 0;
    int week = 0; ///< 1..53

    friend auto operator<=>(const IsoWeek&, const IsoWeek&) = default;
};
IsoWeek IsoWeekOf(CalendarDate date);
CalendarDate MondayOf(IsoWeek week);

/// The 52 or 53 weeks of a year, from `days` of the years around it too where there are such.
std::vector<PeriodTotal> WeeksOf(DaySpan days, int year);
/// The 12 months of a year.
std::vector<PeriodTotal> MonthsOf(DaySpan days, int year);
/// Each year that has a diary.
std::vector<PeriodTotal> YearsOf(const AllDiaries& all);

/// The metres run from 1 January to each day of a year up to `last`: the first of them is that of 1 January.
std::vector<long> CurveOf(DaySpan days, int year, CalendarDate last);

/// The last day of a year of which something is known: 31 December of a past year; of the present one today, or the day
/// of an entry that is later; of a year to come the last entry, or the eve of New Year when there is none.
CalendarDate LastKnownDay(DaySpan days, int year, CalendarDate today);

/// How much was run up to a day, in metres a week. Both are on one scale: the one above the other tells that the runner
/// does more than he is used to, or less.
struct Load {
    CalendarDate date;
    long week = 0;     ///< The sum of 7 days, the day itself among them.
    long sixWeeks = 0; ///< A sixth of the sum of 42 days.
    bool full = false; ///< False for the first 41 days of a diary that follows none: 42 days are not known yet.
};

/// The load on each day of all years that have a diary, in order, up to LastKnownDay.
std::vector<Load> LoadOf(const AllDiaries& all, CalendarDate today);

} // namespace zelvia
