// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ChartModel.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QTest>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;

namespace
{

/// The bars as "label=count".
QByteArrayList Bars(const ChartData& chart)
{
    QByteArrayList bars;
    for (int column = 1; column <= chart.ColumnCount(); ++column) {
        bars << Bytes(chart.ColumnLabel(column)) + '=' + QByteArray::number(chart.Data(1, column));
    }
    return bars;
}

/// The points as "label=value".
QByteArrayList Points(const ChartData& chart)
{
    QByteArrayList points;
    for (int row = 1; row <= chart.RowCount(); ++row) {
        points << Bytes(chart.RowLabel(row)) + '=' + QByteArray::number(chart.Data(row, 1));
    }
    return points;
}

} // namespace

class ChartModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BarsStandAsRanked();
    void ALongNameIsKept();
    void NumbersWhereThereIsNoName();
    void AStatisticWithoutValues();
    void SixtyBars();
    void AGapInTheRankingIsAnError();
    void TheLineFollowsTheRuns();
    void BeforeAnySearch();
    void ARunWithoutAPaceStandsInTheLine();
    void Only350Runs();
    void GridOfAChart();
};

void ChartModelTest::BarsStandAsRanked()
{
    PerCategory<Text> names;
    PerCategory<i16> counts;
    names[1] = "Lungofiume";
    names[2] = "Citt\xE0";
    counts[1] = 12;
    counts[2] = 3;
    const ChartData chart = CategoryChart("Percorso", names, counts, {});
    QVERIFY(chart.chartType == ChartType::Bars);
    QCOMPARE(Bytes(chart.TitleText), QByteArray("Percorso"));
    QCOMPARE(chart.RowCount(), 1);
    QCOMPARE(Bars(chart), (QByteArrayList{"Lungofiume=12", "Citt\xE0=3"}));
}

void ChartModelTest::ALongNameIsKept()
{
    PerCategory<Text> names;
    PerCategory<i16> counts;
    const QByteArray name("Dal ponte vecchio alla cascata e ritorno per la riva destra");
    names[1] = name.toStdString();
    counts[1] = 1;
    QCOMPARE(Bars(CategoryChart("Percorso", names, counts, {})), QByteArrayList{name + "=1"});
}

void ChartModelTest::NumbersWhereThereIsNoName()
{
    // Days with a distance and no runners have a bar, labelled 0.
    PerCategory<i16> counts;
    PerCategory<i16> values;
    counts[1] = 40;
    values[1] = 1;
    counts[2] = 7;
    values[2] = 0;
    counts[3] = 2;
    values[3] = 15;
    QCOMPARE(Bars(CategoryChart("Corridori", {}, counts, values)), (QByteArrayList{"1=40", "0=7", "15=2"}));
}

void ChartModelTest::AStatisticWithoutValues()
{
    const ChartData chart = CategoryChart("Meteo", {}, {}, {});
    QCOMPARE(Bytes(chart.TitleText), QByteArray("Meteo"));
    QCOMPARE(chart.ColumnCount(), 0);
    QCOMPARE(chart.RowCount(), 1);
}

void ChartModelTest::SixtyBars()
{
    PerCategory<Text> names;
    PerCategory<i16> counts;
    for (int i = 1; i <= 60; ++i) {
        names[i] = "P" + std::to_string(i);
        counts[i] = 61 - i;
    }
    const QByteArrayList bars = Bars(CategoryChart("Percorso", names, counts, {}));
    QCOMPARE(bars.size(), 60);
    QCOMPARE(bars.first(), QByteArray("P1=60"));
    QCOMPARE(bars.last(), QByteArray("P60=1"));
}

void ChartModelTest::AGapInTheRankingIsAnError()
{
    PerCategory<i16> counts;
    counts[1] = 1;
    counts[3] = 1;
    QCOMPARE(RaisedBy([&] { CategoryChart("Percorso", {}, counts, {}); }), 9);
}

void ChartModelTest::TheLineFollowsTheRuns()
{
    PaceTable paces;
    paces[1] = 5.07F;
    paces[2] = 4.5F;
    paces[3] = 6.0F;
    paces[4] = 12.35F;
    const ChartData chart = PaceChart(paces);
    QVERIFY(chart.chartType == ChartType::Line);
    QCOMPARE(Bytes(chart.TitleText), QByteArray("Velocit\xE0 Media per Km"));
    QCOMPARE(chart.ColumnCount(), 1);
    QCOMPARE(Bytes(chart.ColumnLabel(1)), QByteArray("Tempo"));
    QCOMPARE(Points(chart), (QByteArrayList{"5,07=5.07", "4,5=4.5", "6=6", "12,35=12.35"}));
}

void ChartModelTest::BeforeAnySearch()
{
    const ChartData chart = PaceChart({});
    QCOMPARE(chart.RowCount(), 0);
    QCOMPARE(Bytes(chart.TitleText), QByteArray("Velocit\xE0 Media per Km"));
}

void ChartModelTest::ARunWithoutAPaceStandsInTheLine()
{
    // Three paces are counted and three places read, so the last run falls off.
    PaceTable paces;
    paces[1] = 5.0F;
    paces[3] = 5.1F;
    paces[4] = 5.2F;
    QCOMPARE(Points(PaceChart(paces)), (QByteArrayList{"5=5", "0=0", "5,1=5.1"}));
}

void ChartModelTest::Only350Runs()
{
    PaceTable paces;
    for (int i = 1; i <= 370; ++i) {
        paces[i] = i <= 350 ? 5.5F : 4.0F;
    }
    const QByteArrayList points = Points(PaceChart(paces));
    QCOMPARE(points.size(), 350);
    QCOMPARE(points.last(), QByteArray("5,5=5.5"));
}

void ChartModelTest::GridOfAChart()
{
    ChartData chart;
    QCOMPARE(RaisedBy([&] { chart.SetData("1"); }), 9);
    chart.SetColumnCount(2);
    chart.SetRowCount(2);
    chart.Row = 2;
    chart.Column = 2;
    chart.SetData("1.234,5");
    chart.SetRowLabel("giu");
    chart.SetColumnLabel("destra");
    QCOMPARE(chart.Data(2, 2), 1234.5);
    QCOMPARE(chart.Data(1, 2), 0.0);
    QCOMPARE(RaisedBy([&] { chart.SetData("molti"); }), 13);
    chart.SetColumnCount(3);
    chart.SetRowCount(3);
    QCOMPARE(chart.Data(2, 2), 1234.5);
    QCOMPARE(chart.Data(3, 3), 0.0);
    QCOMPARE(Bytes(chart.RowLabel(2)), QByteArray("giu"));
    QCOMPARE(Bytes(chart.ColumnLabel(2)), QByteArray("destra"));
    QCOMPARE(RaisedBy([&] { static_cast<void>(chart.Data(4, 1)); }), 9);
    QCOMPARE(RaisedBy([&] { static_cast<void>(chart.Data(1, 0)); }), 9);
    QCOMPARE(RaisedBy([&] { chart.SetRowCount(-1); }), 9);
}

ZELVIA_TEST(ChartModelTest)
#include "ChartModelTest.moc"
