// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/ChartData.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/CategoryStatistics.h"

namespace zelvia
{

/// The pace of each run of a search, by its number from 1: minutes with the seconds as hundredths, 5:07 is 5.07.
using PaceTable = BoundedArray<f32, 0, 370>;

/// The places of a PaceTable that a search clears and a chart reads.
inline constexpr int kChartedRuns = 350;

/// How often each value of a category occurred: a bar for each place 1..60 whose count is above 0, under its name or,
/// where that is empty, its number. Raises error 9 when these places are not contiguous from 1 on.
ChartData CategoryChart(TextView title, const PerCategory<Text>& names, const PerCategory<i16>& count,
                        const PerCategory<i16>& values);

/// The pace of the runs found, in their order: as many of the first 350 places as hold more than 0. A run without a
/// pace is among them as a point of 0, and the last run then falls off the end.
ChartData PaceChart(const PaceTable& values);

} // namespace zelvia
