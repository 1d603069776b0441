// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Bests.h"

#include "core/Conversions.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>

namespace zelvia
{
namespace
{

struct IgnoringCase {
    bool operator()(const Text& a, const Text& b) const { return TextCompare(a, b) < 0; }
};

template <typename Value>
using ByRoute = std::map<Text, Value, IgnoringCase>;

bool IsTimed(const DiaryDay& day)
{
    return day.metres > 0 && day.seconds > 0;
}

void Take(BestTime& best, const DiaryDay& day)
{
    if (best.runs == 0 || day.seconds < best.best.seconds) {
        best.metres = day.metres;
        best.route = day.route;
        best.best = day;
    }
    ++best.runs;
}

/// The distance in the middle of the runs', of two the longer one.
int UsualDistance(const std::vector<const DiaryDay*>& runs)
{
    std::vector<int> distances;
    for (const DiaryDay* run : runs) {
        distances.push_back(run->metres);
    }
    const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return *middle;
}

/// The best time of the runs over their usual distance.
BestTime BestOf(const std::vector<const DiaryDay*>& runs)
{
    constexpr int share = 30; // As imported runs are given to routes.
    const int usual = UsualDistance(runs);
    BestTime best;
    for (const DiaryDay* run : runs) {
        if (std::abs(run->metres - usual) <= usual / share) {
            Take(best, *run);
        }
    }
    return best;
}

} // namespace

std::vector<RoutePace> PacesByRoute(DaySpan days)
{
    ByRoute<std::map<int, RoutePace>> routes;
    for (const DiaryDay& day : days) {
        if (IsTimed(day) && !day.route.empty()) {
            const auto& route = routes.try_emplace(day.route).first;
            const int year = day.date.Year().value();
            RoutePace& pace = route->second.try_emplace(year, RoutePace{route->first, year}).first->second;
            ++pace.runs;
            pace.metres += day.metres;
            pace.seconds += day.seconds;
        }
    }
    std::vector<RoutePace> paces;
    for (const auto& [route, years] : routes) {
        for (const auto& [year, pace] : years) {
            paces.push_back(pace);
        }
    }
    return paces;
}

std::vector<BestTime> BestsByDistance(DaySpan days)
{
    std::map<int, BestTime> distances;
    for (const DiaryDay& day : days) {
        if (IsTimed(day)) {
            Take(distances[day.metres], day);
        }
    }
    std::vector<BestTime> bests;
    for (const auto& [metres, best] : distances) {
        bests.push_back(best);
    }
    return bests;
}

std::vector<BestTime> BestsByRoute(DaySpan days)
{
    ByRoute<std::vector<const DiaryDay*>> routes;
    for (const DiaryDay& day : days) {
        if (IsTimed(day) && !day.route.empty()) {
            routes[day.route].push_back(&day);
        }
    }
    std::vector<BestTime> bests;
    for (const auto& [route, runs] : routes) {
        bests.push_back(BestOf(runs));
        bests.back().route = route;
    }
    return bests;
}

std::vector<MonthWeight> WeightsByMonth(DaySpan days)
{
    std::vector<MonthWeight> months;
    long sum = 0;
    for (const DiaryDay& day : days) {
        if (day.kilograms == 0) {
            continue;
        }
        const CalendarDate month = day.date.PlusDays(1 - day.date.Day().value());
        if (months.empty() || months.back().month != month) {
            months.push_back({month, 0, day.kilograms, day.kilograms});
            sum = 0;
        }
        MonthWeight& last = months.back();
        ++last.days;
        last.lowest = std::min(last.lowest, day.kilograms);
        last.highest = std::max(last.highest, day.kilograms);
        sum += day.kilograms;
        last.mean = static_cast<double>(sum) / last.days;
    }
    return months;
}

} // namespace zelvia
