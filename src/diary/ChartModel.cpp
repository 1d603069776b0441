// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ChartModel.h"

#include "core/Conversions.h"

namespace zelvia
{
namespace
{

/// How many of the kMaxCategorie 1..`last` hold more than 0.
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

ChartData GraficoCategorie(TextView titolo, const PerCategoria<Text>& nomi, const PerCategoria<i16>& conta,
                           const PerCategoria<i16>& valori)
{
    ChartData grafico;
    grafico.chartType = ChartType::Bars;
    grafico.TitleText = titolo;
    grafico.SetColumnCount(CountAbove0(conta, kMaxCategorie));
    grafico.SetRowCount(1);
    for (int i = 1; i <= kMaxCategorie; ++i) {
        if (conta[i] > 0) {
            grafico.Column = i;
            grafico.SetData(PlainText(conta[i]));
            grafico.SetColumnLabel(nomi[i].empty() ? PlainText(valori[i]) : nomi[i]);
        }
    }
    return grafico;
}

ChartData GraficoMedie(const PaceTable& valori)
{
    const int n = CountAbove0(valori, kChartedRuns);
    ChartData grafico;
    grafico.chartType = ChartType::Line;
    grafico.TitleText = "Velocità Media per Km"_t;
    grafico.SetColumnCount(1);
    grafico.SetRowCount(n);
    grafico.SetColumnLabel("Tempo");
    for (int i = 1; i <= n; ++i) {
        grafico.Row = i;
        grafico.SetData(PlainText(valori[i]));
        grafico.SetRowLabel(PlainText(valori[i]));
    }
    return grafico;
}

} // namespace zelvia
