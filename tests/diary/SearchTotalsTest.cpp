// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SearchTotals.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <vector>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

class SearchTotalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TimesAreAdded_data();
    void TimesAreAdded();
    void MinutesHaveALimit();
    void AveragesAreAdded_data();
    void AveragesAreAdded();
    void MetresBecomeKilometres_data();
    void MetresBecomeKilometres();
    void SecondsBecomeMinutesAndHours_data();
    void SecondsBecomeMinutesAndHours();
    void AMeanOfAverages_data();
    void AMeanOfAverages();
    void Shown_data();
    void Shown();
    void EmptyingKeepsTheLastPlaces();
};

void SearchTotalsTest::TimesAreAdded_data()
{
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<int>("error");
    QTest::addColumn<std::vector<int>>("added");
    const auto row = [](const char* time, std::vector<int> added) {
        QTest::newRow(time) << QByteArray(time) << (added.empty() ? 5 : 0)
                            << (added.empty() ? std::vector<int>{0, 0, 0} : std::move(added));
    };
    row("", {0, 0, 0});
    row("0:58:58", {0, 58, 58});
    row("1:02:03", {1, 2, 3});
    row("123:456:789", {123, 456, 789});
    row("45", {45, 0, 0});
    row("12:34", {12, 34, 0});
    row(":::", {0, 0, 0});
    row("1:2:3:", {1, 2, 3});
    row(" 1: 2: 3", {1, 2, 3});
    row("1.5:2.5:3.5", {2, 2, 4});
    row("-1:x:7x", {-1, 0, 7});
    row("1234:00:00", {});
    row("1:0000:00", {});
    row("1:00:0000", {});
    row("1:02:03:04", {});
    row("diario", {});
}

void SearchTotalsTest::TimesAreAdded()
{
    QFETCH(QByteArray, time);
    QFETCH(std::vector<int>, added);
    SearchTotals totals;
    totals.TotOre = 1000;
    totals.TotMinuti = 100;
    totals.TotSecondi = 10;
    QTEST(RaisedBy([&] { SommaTempi(totals, TextOf(time)); }), "error");
    QCOMPARE(totals.TotOre.value(), 1000 + added[0]);
    QCOMPARE(int{totals.TotMinuti.value()}, 100 + added[1]);
    QCOMPARE(int{totals.TotSecondi.value()}, 10 + added[2]);
}

void SearchTotalsTest::MinutesHaveALimit()
{
    SearchTotals totals;
    totals.TotMinuti = 32700;
    QCOMPARE(RaisedBy([&] { SommaTempi(totals, "1:99:59"); }), 6);
    QCOMPARE(totals.TotOre.value(), 1);
    QCOMPARE(int{totals.TotMinuti.value()}, 32700);
    QCOMPARE(int{totals.TotSecondi.value()}, 0);
}

void SearchTotalsTest::AveragesAreAdded_data()
{
    QTest::addColumn<QByteArray>("average");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<float>("pace");
    const auto row = [](const char* average, int minutes, int seconds, float pace) {
        QTest::newRow(average) << QByteArray(average) << 0 << minutes << seconds << pace;
    };
    row("", 0, 0, 0.0F);
    row("5:07", 5, 7, 5.07F);
    row("5:10", 5, 10, 5.1F);
    row("9:59", 9, 59, 9.59F);
    row("12:00", 12, 0, 12.0F);
    row("0:45", 0, 45, 0.45F);
    row("5", 5, 0, 5.0F);
    row("5:123", 5, 123, 5.123F);
    row("5:7:", 5, 7, 5.07F);
    for (const char* average : {"1234:00", "5:1234", "5:07:1", "presto"}) {
        QTest::newRow(average) << QByteArray(average) << 5 << 0 << 0 << 0.0F;
    }
}

void SearchTotalsTest::AveragesAreAdded()
{
    QFETCH(QByteArray, average);
    QFETCH(int, error);
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(float, pace);
    SearchTotals totals;
    totals.NumCorse = 3;
    totals.TotMediaMinuti = 40;
    totals.TotMediaSecondi = 90;
    totals.MinutiMedia = 33;
    QCOMPARE(RaisedBy([&] { SommaMedia(totals, TextOf(average)); }), error);
    QCOMPARE(totals.TotMediaMinuti.value(), 40 + minutes);
    QCOMPARE(totals.TotMediaSecondi.value(), 90 + seconds);
    QCOMPARE(totals.Medie[3], pace);
    QCOMPARE(int{totals.MinutiMedia.value()}, error == 0 ? minutes : 33);
}

void SearchTotalsTest::MetresBecomeKilometres_data()
{
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metres");
    QTest::addColumn<int>("kmAfter");
    QTest::addColumn<int>("metresAfter");
    QTest::newRow("999 m") << 3 << 999 << 3 << 999;
    QTest::newRow("1000 m") << 3 << 1000 << 4 << 0;
    QTest::newRow("12345 m") << 5 << 12345 << 17 << 345;
}

void SearchTotalsTest::MetresBecomeKilometres()
{
    QFETCH(int, km);
    QFETCH(int, metres);
    SearchTotals totals;
    totals.TotKm = km;
    totals.TotMetri = metres;
    SommaKm(totals);
    QTEST(totals.TotKm.value(), "kmAfter");
    QTEST(totals.TotMetri.value(), "metresAfter");
}

void SearchTotalsTest::SecondsBecomeMinutesAndHours_data()
{
    QTest::addColumn<std::vector<int>>("before");
    QTest::addColumn<int>("error");
    QTest::addColumn<std::vector<int>>("after");
    const auto row = [](const char* name, std::vector<int> before, std::vector<int> after, int error = 0) {
        QTest::newRow(name) << std::move(before) << error << std::move(after);
    };
    row("nothing to carry", {1, 59, 59}, {1, 59, 59});
    row("125 seconds", {0, 0, 125}, {0, 2, 5});
    row("seconds make the hour full", {1, 59, 60}, {2, 0, 0});
    row("minutes alone", {0, 121, 59}, {2, 1, 59});
    row("a year", {0, 20000, 21000}, {339, 10, 0});
    row("too many minutes", {7, 32767, 60}, {7, 32767, 0}, 6);
}

void SearchTotalsTest::SecondsBecomeMinutesAndHours()
{
    QFETCH(std::vector<int>, before);
    SearchTotals totals;
    totals.TotOre = before[0];
    totals.TotMinuti = before[1];
    totals.TotSecondi = before[2];
    QTEST(RaisedBy([&] { TempiTotali(totals); }), "error");
    const std::vector<int> result = {totals.TotOre.value(), totals.TotMinuti.value(), totals.TotSecondi.value()};
    QTEST(result, "after");
}

void SearchTotalsTest::AMeanOfAverages_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("runs");
    QTest::addColumn<int>("minutesAfter");
    QTest::addColumn<int>("secondsAfter");
    QTest::newRow("nothing") << 0 << 0 << 0 << 0 << 0;
    QTest::newRow("runs without an average") << 0 << 0 << 3 << 0 << 0;
    QTest::newRow("5:00 and 5:14") << 10 << 14 << 2 << 5 << 7;
    QTest::newRow("cut, not rounded") << 10 << 15 << 2 << 5 << 7;
    QTest::newRow("seconds alone") << 0 << 150 << 2 << 1 << 15;
    QTest::newRow("seconds alone, below a minute") << 0 << 51 << 2 << 0 << 25;
    QTest::newRow("below a minute the sum of the minutes stays") << 1 << 0 << 2 << 1 << 30;
    QTest::newRow("59 seconds") << 5 << 54 << 6 << 5 << 59;
    QTest::newRow("a full minute") << 6 << 0 << 6 << 1 << 0;
}

void SearchTotalsTest::AMeanOfAverages()
{
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(int, runs);
    SearchTotals totals;
    totals.TotMediaMinuti = minutes;
    totals.TotMediaSecondi = seconds;
    totals.NumCorse = runs;
    MediaTotali(totals);
    QTEST(totals.TotMediaMinuti.value(), "minutesAfter");
    QTEST(totals.TotMediaSecondi.value(), "secondsAfter");
}

void SearchTotalsTest::Shown_data()
{
    QTest::addColumn<std::vector<int>>("totals"); // runs, km, metres, hours, minutes, seconds, average
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](std::vector<int> totals, const char* shown) {
        QTest::newRow(shown) << std::move(totals) << QByteArray(shown);
    };
    row({0, 0, 0, 0, 0, 0, 0, 0}, " 0| | 0:00:00| 0:00");
    row({1, 0, 500, 0, 5, 7, 5, 7}, " 1| ,500| 0:05:07| 5:07");
    row({34, 1234, 0, 139, 5, 34, 12, 30}, " 34| 1.234| 139:05:34| 12:30");
    row({366, 1234567, 50, 1000, 59, 0, 4, 59}, " 366| 1.234.567,50| 1000:59:00| 4:59");
}

void SearchTotalsTest::Shown()
{
    QFETCH(std::vector<int>, totals);
    SearchTotals filled;
    filled.NumCorse = totals[0];
    filled.TotKm = totals[1];
    filled.TotMetri = totals[2];
    filled.TotOre = totals[3];
    filled.TotMinuti = totals[4];
    filled.TotSecondi = totals[5];
    filled.TotMediaMinuti = totals[6];
    filled.TotMediaSecondi = totals[7];
    QTEST(Bytes(RunsText(filled) + "|" + DistanceText(filled) + "|" + TimesText(filled) + "|" + MeanText(filled)),
          "shown");
}

void SearchTotalsTest::EmptyingKeepsTheLastPlaces()
{
    SearchTotals totals;
    totals.TotKm = totals.TotMetri = totals.TotOre = totals.TotMediaMinuti = totals.TotMediaSecondi = 9;
    totals.TotMinuti = totals.TotSecondi = totals.NumCorse = totals.MinutiMedia = 9;
    for (int i = 0; i <= 370; ++i) {
        totals.Medie[i] = 5;
    }
    ClearTotals(totals);
    QCOMPARE(totals.TotKm.value() + totals.TotMetri.value() + totals.TotOre.value(), 0);
    QCOMPARE(totals.TotMediaMinuti.value() + totals.TotMediaSecondi.value(), 0);
    QCOMPARE(totals.TotMinuti.value() + totals.TotSecondi.value() + totals.NumCorse.value(), 0);
    for (int i = 1; i <= 370; ++i) {
        QCOMPARE(totals.Medie[i], i <= 350 ? 0.0F : 5.0F);
    }
}

ZELVIA_TEST(SearchTotalsTest)
#include "SearchTotalsTest.moc"
