// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Bests.h"

#include "support/TestProgram.h"
#include "tools/years/DaysOfYears.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class BestsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PaceOfARoute();
    void ByDistance();
    void OfEqualTimesTheFirst();
    void ByRoute();
    void TheUsualDistance();
    void AboutTheUsualDistance();
    void Weights();
    void OfNothing();
};

void BestsTest::PaceOfARoute()
{
    const std::vector<DiaryDay> days = {
        RunOn({2023, 5, 1}, "Lungomare", 10'000, 3'000), RunOn({2023, 6, 1}, "LUNGOMARE", 5'000, 1'650),
        RunOn({2023, 7, 1}, "Bosco", 8'000, 2'400),      RunOn({2023, 8, 1}, "Bosco", 8'000, 0),
        RunOn({2024, 5, 1}, "lungomare", 10'000, 2'900), RunOf({2024, 6, 1}, 10'000, 2'000)};
    const std::vector<RoutePace> paces = PacesByRoute(days);
    QCOMPARE(paces.size(), std::size_t{3});
    QCOMPARE(paces[0].route, Text("Bosco"));
    QCOMPARE(paces[0].runs, 1); // One without a time has no pace.
    QCOMPARE(paces[0].SecondsPerKm(), 300.0);
    QCOMPARE(paces[1].route, Text("Lungomare"));
    QCOMPARE(paces[1].year, 2023);
    QCOMPARE(paces[1].runs, 2);
    QCOMPARE(paces[1].SecondsPerKm(), 310.0); // 4650 s over 15 km, not the mean of 300 and 330
    QCOMPARE(paces[2].route, Text("Lungomare"));
    QCOMPARE(paces[2].year, 2024);
    QCOMPARE(paces[2].SecondsPerKm(), 290.0);
}

void BestsTest::ByDistance()
{
    const std::vector<DiaryDay> days = {RunOn({2023, 5, 1}, "Bosco", 10'000, 3'000), RunOf({2023, 6, 1}, 21'097, 6'000),
                                        RunOn({2024, 5, 1}, "Mare", 10'000, 2'900), RunOf({2024, 6, 1}, 10'001, 2'000),
                                        RunOf({2025, 6, 1}, 10'000, 2'950)};
    const std::vector<BestTime> bests = BestsByDistance(days);
    QCOMPARE(bests.size(), std::size_t{3});
    QCOMPARE(bests[0].metres, 10'000);
    QCOMPARE(bests[0].runs, 3);
    QVERIFY(bests[0].best == days[2]);
    QCOMPARE(bests[0].route, Text("Mare"));
    QCOMPARE(bests[1].metres, 10'001);
    QCOMPARE(bests[2].metres, 21'097);
    QCOMPARE(bests[2].runs, 1);
}

void BestsTest::OfEqualTimesTheFirst()
{
    const std::vector<DiaryDay> days = {RunOn({2023, 5, 1}, "Bosco", 10'000, 3'000),
                                        RunOn({2023, 5, 2}, "Bosco", 10'000, 2'800),
                                        RunOn({2024, 5, 1}, "Bosco", 10'000, 2'800)};
    QVERIFY(BestsByDistance(days)[0].best.date == CalendarDate(2023, 5, 2));
    QVERIFY(BestsByRoute(days)[0].best.date == CalendarDate(2023, 5, 2));
}

void BestsTest::ByRoute()
{
    const std::vector<DiaryDay> days = {RunOn({2023, 5, 1}, "Mare", 10'000, 3'000),
                                        RunOn({2023, 5, 2}, "bosco", 8'000, 2'500),
                                        RunOn({2024, 5, 1}, "Bosco", 8'000, 2'400), RunOf({2024, 6, 1}, 8'000, 2'000)};
    const std::vector<BestTime> bests = BestsByRoute(days);
    QCOMPARE(bests.size(), std::size_t{2});
    QCOMPARE(bests[0].route, Text("bosco")); // as it was first spelt
    QCOMPARE(bests[0].best.seconds, 2'400);
    QCOMPARE(bests[1].route, Text("Mare"));
}

/// A run that was broken off is no record of its route.
void BestsTest::TheUsualDistance()
{
    std::vector<DiaryDay> days = {RunOn({2023, 5, 1}, "Bosco", 8'000, 2'500), RunOn({2023, 5, 2}, "Bosco", 3'000, 900),
                                  RunOn({2023, 5, 3}, "Bosco", 8'000, 2'450)};
    QCOMPARE(BestsByRoute(days)[0].metres, 8'000);
    QCOMPARE(BestsByRoute(days)[0].best.seconds, 2'450);
    QCOMPARE(BestsByRoute(days)[0].runs, 2);
    days.push_back(RunOn({2023, 5, 4}, "Bosco", 3'000, 950)); // As often as the longer one, which remains.
    QCOMPARE(BestsByRoute(days)[0].metres, 8'000);
}

/// A watch measures each run a little differently: all that are within a thirtieth of 10,012 m count.
void BestsTest::AboutTheUsualDistance()
{
    const std::vector<DiaryDay> days = {
        RunOn({2023, 5, 1}, "Bosco", 10'012, 3'000), RunOn({2023, 5, 2}, "Bosco", 9'679, 2'900),
        RunOn({2023, 5, 3}, "Bosco", 10'345, 2'950), RunOn({2023, 5, 4}, "Bosco", 9'678, 2'800),
        RunOn({2023, 5, 5}, "Bosco", 10'346, 2'700)};
    const BestTime best = BestsByRoute(days)[0];
    QCOMPARE(best.runs, 3);
    QVERIFY(best.best == days[1]);
}

void BestsTest::Weights()
{
    const std::vector<DiaryDay> days = {WeightOf({2024, 2, 1}, 70),  WeightOf({2024, 2, 29}, 73),
                                        RunOf({2024, 3, 5}, 10'000), WeightOf({2024, 4, 30}, 69),
                                        WeightOf({2025, 4, 1}, 68),  WeightOf({2025, 4, 2}, 68)};
    const std::vector<MonthWeight> months = WeightsByMonth(days);
    QCOMPARE(months.size(), std::size_t{3});
    QVERIFY(months[0].month == CalendarDate(2024, 2, 1));
    QCOMPARE(months[0].days, 2);
    QCOMPARE(months[0].mean, 71.5);
    QCOMPARE(months[0].lowest, 70);
    QCOMPARE(months[0].highest, 73);
    QCOMPARE(months[1].mean, 69.0);
    QVERIFY(months[2].month == CalendarDate(2025, 4, 1));
    QCOMPARE(months[2].mean, 68.0);
}

void BestsTest::OfNothing()
{
    QVERIFY(PacesByRoute({}).empty());
    QVERIFY(BestsByDistance({}).empty());
    QVERIFY(BestsByRoute({}).empty());
    QVERIFY(WeightsByMonth({}).empty());
}

ZELVIA_TEST(BestsTest)
#include "BestsTest.moc"
