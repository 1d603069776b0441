// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"

#include <vector>

// How the drawings of a book count, whatever they are drawn with.
namespace zelvia
{

/// The radius of a day's dot: its area grows with the distance, up to `largest` from 42 km on; a short run still shows.
double DotRadius(int metres, double largest);

/// The round step of an axis from 0 to `highest` that has some five lines: 1, 2 or 5 times a power of ten.
double AxisStep(double highest);

/// The highest kilometres of all curves, 1 at least.
double HighestOf(const BookCurves& curves);

/// Moves places apart, within 0..`height`, until there is `gap` between them, or less when they are too many. They stay
/// in their order.
std::vector<double> SpreadApart(const std::vector<double>& places, double gap, double height);

/// The day of the year, from 0 on, on which each month begins.
std::vector<int> MonthStarts();

} // namespace zelvia
