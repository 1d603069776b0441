// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookGeometry.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zelvia
{

double DotRadius(int metres, double largest)
{
    constexpr double marathon = 42195;
    constexpr double least = 0.22;
    return largest * std::clamp(std::sqrt(metres / marathon), least, 1.0);
}

double AxisStep(double highest)
{
    constexpr double lines = 5;
    const double wanted = std::max(highest, 1.0) / lines;
    const double power = std::pow(10, std::floor(std::log10(wanted)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= wanted) {
            return factor * power;
        }
    }
    return 10 * power;
}

double HighestOf(const BookCurves& curves)
{
    double highest = 1;
    for (const BookCurves::Curve& curve : curves.curves) {
        highest = std::max(highest, curve.km.empty() ? 0 : curve.km.back());
    }
    return highest;
}

std::vector<double> SpreadApart(const std::vector<double>& places, double gap, double height)
{
    std::vector<std::size_t> order(places.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return places[a] < places[b]; });
    const double count = static_cast<double>(places.size());
    const double apart = std::min(gap, height / std::max(count, 1.0));
    std::vector<double> spread = places;
    double lowest = 0;
    for (const std::size_t i : order) {
        spread[i] = lowest = std::max(lowest, places[i]);
        lowest += apart;
    }
    double highest = height;
    for (auto i = order.rbegin(); i != order.rend(); ++i) {
        spread[*i] = highest = std::min(highest, spread[*i]);
        highest -= apart;
    }
    return spread;
}

std::vector<int> MonthStarts()
{
    constexpr int leapYear = 2024;
    std::vector<int> starts;
    for (unsigned month = 1; month <= 12; ++month) {
        starts.push_back(CalendarDate(leapYear, month, 1).DayOfYear().value() - 1);
    }
    return starts;
}

} // namespace zelvia
