// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Periods.h"

#include <algorithm>
#include <numeric>

namespace zelvia
{
namespace
{

constexpr int kWeek = 7;
constexpr int kMonths = 12;

CalendarDate NewYear(int year)
{
    return {year, 1, 1};
}

CalendarDate YearsEnd(int year)
{
    return {year, 12, 31};
}

DaySpan Between(DaySpan days, CalendarDate first, CalendarDate last)
{
    const auto from = std::lower_bound(days.begin(), days.end(), first,
                                       [](const DiaryDay& day, CalendarDate date) { return day.date < date; });
    const auto to = std::upper_bound(from, days.end(), last,
                                     [](CalendarDate date, const DiaryDay& day) { return date < day.date; });
    return {from, to};
}

PeriodTotal TotalOf(DaySpan days, int number, CalendarDate first, CalendarDate last)
{
    PeriodTotal total{number, first, last};
    for (const DiaryDay& day : Between(days, first, last)) {
        total.metres += day.metres;
        total.runs += day.run ? 1 : 0;
        total.races += day.race ? 1 : 0;
    }
    return total;
}

/// From 0 for Monday to 6 for Sunday.
int PlaceInWeek(CalendarDate date)
{
    return static_cast<int>((date.Weekday() + 6) % kWeek);
}

/// The metres of each day of a year up to `last`.
std::vector<long> MetresByDay(DaySpan days, int year, CalendarDate last)
{
    std::vector<long> metres;
    if (last >= NewYear(year)) {
        metres.resize(static_cast<std::size_t>(last.DayOfYear().value()));
        for (const DiaryDay& day : Between(days, NewYear(year), last)) {
            metres[static_cast<std::size_t>(day.date.DayOfYear().value() - 1)] = day.metres;
        }
    }
    return metres;
}

/// The sum of the last `count` of the values up to the one at `place`, or of what there is.
long SumOfLast(const std::vector<long>& values, std::size_t place, std::size_t count)
{
    const auto end = values.begin() + static_cast<std::ptrdiff_t>(place + 1);
    return std::accumulate(end - static_cast<std::ptrdiff_t>(std::min(count, place + 1)), end, 0L);
}

} // namespace

IsoWeek IsoWeekOf(CalendarDate date)
{
    // The year of a week is that of its Thursday.
    constexpr int thursday = 3;
    const CalendarDate middle = date.PlusDays(thursday - PlaceInWeek(date));
    return {middle.Year().value(), (middle.DayOfYear().value() - 1) / kWeek + 1};
}

CalendarDate MondayOf(IsoWeek week)
{
    const CalendarDate inFirst(week.year, 1, 4);
    return inFirst.PlusDays((week.week - 1) * kWeek - PlaceInWeek(inFirst));
}

std::vector<PeriodTotal> WeeksOf(DaySpan days, int year)
{
    const int count = IsoWeekOf({year, 12, 28}).week; // That day is always in the last one.
    std::vector<PeriodTotal> weeks;
    for (int week = 1; week <= count; ++week) {
        const CalendarDate monday = MondayOf({year, week});
        weeks.push_back(TotalOf(days, week, monday, monday.PlusDays(kWeek - 1)));
    }
    return weeks;
}

std::vector<PeriodTotal> MonthsOf(DaySpan days, int year)
{
    std::vector<PeriodTotal> months;
    for (int month = 1; month <= kMonths; ++month) {
        const CalendarDate first = NewYear(year).PlusMonths(month - 1);
        months.push_back(TotalOf(days, month, first, YearsEnd(year).PlusMonths(month - kMonths)));
    }
    return months;
}

std::vector<PeriodTotal> YearsOf(const AllDiaries& all)
{
    std::vector<PeriodTotal> years;
    for (const DiaryYear& year : all.years) {
        years.push_back(TotalOf(year.days, year.year, NewYear(year.year), YearsEnd(year.year)));
    }
    return years;
}

std::vector<long> CurveOf(DaySpan days, int year, CalendarDate last)
{
    std::vector<long> metres = MetresByDay(days, year, std::min(last, YearsEnd(year)));
    std::partial_sum(metres.begin(), metres.end(), metres.begin());
    return metres;
}

CalendarDate LastKnownDay(DaySpan days, int year, CalendarDate today)
{
    const CalendarDate eve = NewYear(year).PlusDays(-1);
    const DaySpan own = Between(days, NewYear(year), YearsEnd(year));
    const CalendarDate lastEntry = own.empty() ? eve : own.back().date;
    return std::min(YearsEnd(year), std::max({eve, today, lastEntry}));
}

std::vector<Load> LoadOf(const AllDiaries& all, CalendarDate today)
{
    constexpr std::size_t days = 42;
    std::vector<Load> loads;
    std::vector<long> metres; // Of the days since the last gap between two years.
    int lastYear = 0;
    for (const DiaryYear& year : all.years) {
        if (year.year != lastYear + 1) {
            metres.clear();
        }
        lastYear = year.year;
        const std::size_t known = metres.size();
        const auto own = MetresByDay(year.days, year.year, LastKnownDay(year.days, year.year, today));
        metres.insert(metres.end(), own.begin(), own.end());
        for (std::size_t i = known; i < metres.size(); ++i) {
            loads.push_back({NewYear(year.year).PlusDays(static_cast<int>(i - known)), SumOfLast(metres, i, kWeek),
                             SumOfLast(metres, i, days) / (static_cast<long>(days) / kWeek), i + 1 >= days});
        }
    }
    return loads;
}

} // namespace zelvia
