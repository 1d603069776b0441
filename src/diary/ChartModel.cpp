// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ChartModel.h"

#include "core/Conversions.h"

namespace zelvia
{
namespace
{

/// How many of the kMaxCategories 1..`last` hold more than 0.
template <typename Values>
int CountAbove0(const Values& values, int last)
{
    int count = 0;
    for (int i = 1; i <= last; ++i) {
        count += values[i] > 0 ? 1 : 0;
    }
    return count;
}

} // namespace

ChartData CategoryChart(TextView title, const PerCategory<Text>& names, const PerCategory<i16>& count,
                        const PerCategory<i16>& values)
{
    ChartData chart;
    chart.chartType = ChartType::Bars;
    chart.TitleText = title;
    chart.SetColumnCount(CountAbove0(count, kMaxCategories));
    chart.SetRowCount(1);
    for (int i = 1; i <= kMaxCategories; ++i) {
        if (count[i] > 0) {
            chart.Column = i;
            chart.SetData(PlainText(count[i]));
            chart.SetColumnLabel(names[i].empty() ? PlainText(values[i]) : names[i]);
        }
    }
    return chart;
}

ChartData PaceChart(const PaceTable& values)
{
    const int n = CountAbove0(values, kChartedRuns);
    ChartData chart;
    chart.chartType = ChartType::Line;
    chart.TitleText = "Velocità Media per Km"_t;
    chart.SetColumnCount(1);
    chart.SetRowCount(n);
    chart.SetColumnLabel("Tempo");
    for (int i = 1; i <= n; ++i) {
        chart.Row = i;
        chart.SetData(PlainText(values[i]));
        chart.SetRowLabel(PlainText(values[i]));
    }
    return chart;
}

} // namespace zelvia
