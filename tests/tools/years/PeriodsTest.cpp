// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Periods.h"

#include "support/TestProgram.h"
#include "tools/years/DaysOfYears.h"

#include <QTest>

#include <algorithm>

using namespace zelvia;
using namespace zelvia::test;

Q_DECLARE_METATYPE(zelvia::CalendarDate)

class PeriodsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IsoWeeks_data();
    void IsoWeeks();
    void WeeksOfAYear_data();
    void WeeksOfAYear();
    void AWeekOverTheYearsEnd();
    void Months();
    void Years();
    void Curve();
    void LastDay_data();
    void LastDay();
    void LoadGoesOn();
    void LoadAfterAGap();
    void LoadEndsToday();
};

void PeriodsTest::IsoWeeks_data()
{
    QTest::addColumn<CalendarDate>("date");
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("week");
    const struct {
        const char* name;
        CalendarDate date;
        int year;
        int week;
    } rows[] = {{"a Saturday at New Year", {2005, 1, 1}, 2004, 53},
                {"the Sunday after it", {2005, 1, 2}, 2004, 53},
                {"the Monday then", {2005, 1, 3}, 2005, 1},
                {"a Saturday at the end", {2005, 12, 31}, 2005, 52},
                {"a Monday at New Year", {2007, 1, 1}, 2007, 1},
                {"a Sunday at the end", {2007, 12, 30}, 2007, 52},
                {"a Monday at the end", {2007, 12, 31}, 2008, 1},
                {"Sunday", {2008, 12, 28}, 2008, 52},
                {"Monday", {2008, 12, 29}, 2009, 1},
                {"a Thursday at the end", {2009, 12, 31}, 2009, 53},
                {"the Sunday of week 53", {2010, 1, 3}, 2009, 53},
                {"leap day", {2024, 2, 29}, 2024, 9},
                {"end of a leap year", {2024, 12, 31}, 2025, 1},
                {"a Thursday at New Year", {2026, 1, 1}, 2026, 1}};
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.date << row.year << row.week;
    }
}

void PeriodsTest::IsoWeeks()
{
    QFETCH(CalendarDate, date);
    QFETCH(int, year);
    QFETCH(int, week);
    const IsoWeek found = IsoWeekOf(date);
    QCOMPARE(found.year, year);
    QCOMPARE(found.week, week);
    const CalendarDate monday = MondayOf(found);
    QCOMPARE(monday.Weekday(), 1u);
    QVERIFY(monday <= date && date <= monday.PlusDays(6));
}

void PeriodsTest::WeeksOfAYear_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("count");
    for (const int year : {2004, 2009, 2015, 2020, 2026}) {
        QTest::addRow("%d", year) << year << 53;
    }
    for (const int year : {2001, 2008, 2023, 2024, 2025, 2027}) {
        QTest::addRow("%d", year) << year << 52;
    }
}

void PeriodsTest::WeeksOfAYear()
{
    QFETCH(int, year);
    QFETCH(int, count);
    const std::vector<PeriodTotal> weeks = WeeksOf({}, year);
    QCOMPARE(static_cast<int>(weeks.size()), count);
    QCOMPARE(weeks.back().number, count);
    QVERIFY(weeks.back().last.PlusDays(1) == WeeksOf({}, year + 1).front().first);
}

void PeriodsTest::AWeekOverTheYearsEnd()
{
    // A Sunday, the Tuesday at the year's end, the Wednesday after it.
    const std::vector<DiaryDay> days = {RunOf({2024, 12, 29}, 3'000), RunOf({2024, 12, 31}, 5'000),
                                        RunOf({2025, 1, 1}, 7'000)};
    const PeriodTotal last = WeeksOf(days, 2024).back();
    QCOMPARE(last.metres, 3'000L);
    QVERIFY(last.first == CalendarDate(2024, 12, 23) && last.last == CalendarDate(2024, 12, 29));
    const PeriodTotal first = WeeksOf(days, 2025).front();
    QCOMPARE(first.metres, 12'000L);
    QCOMPARE(first.runs, 2);
    QVERIFY(first.first == CalendarDate(2024, 12, 30) && first.last == CalendarDate(2025, 1, 5));
}

void PeriodsTest::Months()
{
    std::vector<DiaryDay> days = {RunOf({2024, 2, 1}, 1'500), RunOf({2024, 2, 29}, 6'000), RunOf({2024, 3, 1}, 4'000),
                                  RunOf({2024, 12, 31}, 9'000), RunOf({2025, 2, 1}, 50'000)};
    days[1].race = true;
    days[2].run = false; // Kilometres without a type.
    const std::vector<PeriodTotal> months = MonthsOf(days, 2024);
    QCOMPARE(months.size(), std::size_t{12});
    QVERIFY(months[1].first == CalendarDate(2024, 2, 1) && months[1].last == CalendarDate(2024, 2, 29));
    QCOMPARE(months[1].metres, 7'500L);
    QCOMPARE(months[1].runs, 2);
    QCOMPARE(months[1].races, 1);
    QCOMPARE(months[2].metres, 4'000L);
    QCOMPARE(months[2].runs, 0);
    QCOMPARE(months[11].metres, 9'000L);
    QCOMPARE(MonthsOf(days, 2025)[1].metres, 50'000L);
    QVERIFY(MonthsOf(days, 2025)[1].last == CalendarDate(2025, 2, 28));
}

void PeriodsTest::Years()
{
    const AllDiaries all{{{2023, "2023", {RunOf({2023, 1, 1}, 1'000), RunOf({2023, 12, 31}, 2'000)}}, {2025, "x", {}}},
                         {}};
    const std::vector<PeriodTotal> years = YearsOf(all);
    QCOMPARE(years.size(), std::size_t{2});
    QCOMPARE(years[0].number, 2023);
    QCOMPARE(years[0].metres, 3'000L);
    QCOMPARE(years[1].number, 2025);
    QCOMPARE(years[1].metres, 0L);
}

void PeriodsTest::Curve()
{
    const std::vector<DiaryDay> days = {RunOf({2023, 12, 31}, 9'000), RunOf({2024, 1, 2}, 3'000),
                                        RunOf({2024, 2, 29}, 4'000), RunOf({2024, 12, 31}, 5'000)};
    const std::vector<long> whole = CurveOf(days, 2024, {2024, 12, 31});
    QCOMPARE(whole.size(), std::size_t{366});
    QCOMPARE(whole[0], 0L);
    QCOMPARE(whole[1], 3'000L);
    QCOMPARE(whole[58], 3'000L);
    QCOMPARE(whole[59], 7'000L);
    QCOMPARE(whole[364], 7'000L);
    QCOMPARE(whole[365], 12'000L);
    QCOMPARE(CurveOf(days, 2024, {2024, 1, 3}), (std::vector<long>{0, 3'000, 3'000}));
    QCOMPARE(CurveOf(days, 2023, {2024, 6, 1}).size(), std::size_t{365});
    QVERIFY(CurveOf(days, 2024, {2023, 12, 31}).empty());
}

void PeriodsTest::LastDay_data()
{
    QTest::addColumn<CalendarDate>("today");
    QTest::addColumn<CalendarDate>("last");
    QTest::newRow("a past year") << CalendarDate(2026, 5, 20) << CalendarDate(2025, 12, 31);
    QTest::newRow("this year") << CalendarDate(2025, 5, 20) << CalendarDate(2025, 5, 20);
    QTest::newRow("this year, entered ahead") << CalendarDate(2025, 2, 20) << CalendarDate(2025, 3, 8);
    QTest::newRow("a year to come") << CalendarDate(2024, 12, 20) << CalendarDate(2025, 3, 8);
}

void PeriodsTest::LastDay()
{
    QFETCH(CalendarDate, today);
    QFETCH(CalendarDate, last);
    const std::vector<DiaryDay> days = {RunOf({2025, 3, 8}, 1'000)};
    QVERIFY(LastKnownDay(days, 2025, today) == last);
    QVERIFY(LastKnownDay({}, 2025, {2024, 6, 1}) == CalendarDate(2024, 12, 31));
}

/// 10 km at the end of 2023 and 4 km on New Year's Day count for seven days, and for 42.
void PeriodsTest::LoadGoesOn()
{
    const AllDiaries all{
        {{2023, "2023", {RunOf({2023, 12, 31}, 10'000)}}, {2024, "2024", {RunOf({2024, 1, 1}, 4'000)}}}, {}};
    const std::vector<Load> loads = LoadOf(all, {2026, 5, 20});
    QCOMPARE(loads.size(), std::size_t{365 + 366});
    const auto on = [&](CalendarDate date) {
        return *std::find_if(loads.begin(), loads.end(), [&](const Load& load) { return load.date == date; });
    };
    QCOMPARE(on({2023, 12, 30}).week, 0L);
    QCOMPARE(on({2023, 12, 31}).week, 10'000L);
    QCOMPARE(on({2024, 1, 6}).week, 14'000L);
    QCOMPARE(on({2024, 1, 7}).week, 4'000L);
    QCOMPARE(on({2024, 1, 8}).week, 0L);
    QCOMPARE(on({2024, 2, 10}).sixWeeks, 2'333L); // 14 km in 42 days
    QCOMPARE(on({2024, 2, 11}).sixWeeks, 666L);
    QCOMPARE(on({2024, 2, 12}).sixWeeks, 0L);
    QVERIFY(!on({2023, 2, 10}).full); // the 41st day of all
    QVERIFY(on({2023, 2, 11}).full);
    QVERIFY(on({2024, 1, 1}).full);
}

void PeriodsTest::LoadAfterAGap()
{
    const AllDiaries all{{{2023, "2023", {RunOf({2023, 12, 31}, 10'000)}}, {2025, "2025", {}}}, {}};
    const std::vector<Load> loads = LoadOf(all, {2026, 5, 20});
    const Load& first = loads[365];
    QVERIFY(first.date == CalendarDate(2025, 1, 1));
    QCOMPARE(first.week, 0L);
    QVERIFY(!first.full);
}

void PeriodsTest::LoadEndsToday()
{
    const AllDiaries all{{{2026, "2026", {RunOf({2026, 5, 1}, 10'000)}}}, {}};
    QVERIFY(LoadOf(all, {2026, 5, 20}).back().date == CalendarDate(2026, 5, 20));
    QVERIFY(LoadOf({}, {2026, 5, 20}).empty());
}

ZELVIA_TEST(PeriodsTest)
#include "PeriodsTest.moc"
