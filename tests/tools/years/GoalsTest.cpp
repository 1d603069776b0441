// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Goals.h"

#include "support/TempFolder.h"
#include "support/TestProgram.h"
#include "tools/copies/SafeFiles.h"
#include "tools/years/DaysOfYears.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

Q_DECLARE_METATYPE(zelvia::CalendarDate)

class GoalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheyAreKept();
    void OfEachFolder();
    void ABadFile();
    void WhereTheyCantBeKept();
    void ItsPlace();
    void Standings_data();
    void Standings();
};

void GoalsTest::TheyAreKept()
{
    const TempFolder folder;
    const std::filesystem::path file = folder.Native("stato/zelvia/obiettivi");
    Goals goals(file, folder.Native());
    QVERIFY(!goals.Of(2025));
    goals.Set(2025, 1500);
    goals.Set(2026, 1800);
    QCOMPARE(goals.Of(2025), std::optional(1500));
    QCOMPARE(Goals(file, folder.Native()).Of(2026), std::optional(1800));
    goals.Set(2025, 1600);
    QCOMPARE(folder.Read("stato/zelvia/obiettivi"),
             folder.Native() + "\t2026\t1800\n" + folder.Native() + "\t2025\t1600\n");
    goals.Set(2025, std::nullopt);
    QVERIFY(!Goals(file, folder.Native()).Of(2025));
    goals.Set(2026, 0);
    QVERIFY(!goals.Of(2026));
}

void GoalsTest::OfEachFolder()
{
    const TempFolder folder;
    const std::filesystem::path file = folder.Native("obiettivi");
    folder.MakeFolder("tua");
    Goals mine(file, folder.Native("mia"));
    mine.Set(2025, 1000);
    Goals yours(file, folder.Native("tua"));
    yours.Set(2025, 2000);
    QCOMPARE(Goals(file, folder.Native("mia")).Of(2025), std::optional(1000));
    QCOMPARE(Goals(file, folder.Native("tua/")).Of(2025), std::optional(2000));
}

void GoalsTest::ABadFile()
{
    const TempFolder folder;
    const std::string mine = folder.Native();
    folder.Write("obiettivi", "\n" + mine + "\t2025\n" + mine + "\t2024\tmille\n" + mine + "\tx\t1000\n" + mine +
                                  "\t2023\t-5\n" + mine + "\t2022\t20001\n" + mine + "\t2021\t1000\n");
    Goals goals(folder.Native("obiettivi"), mine);
    for (const int year : {2022, 2023, 2024, 2025}) {
        QVERIFY(!goals.Of(year));
    }
    QCOMPARE(goals.Of(2021), std::optional(1000));
}

void GoalsTest::WhereTheyCantBeKept()
{
    const TempFolder folder;
    Goals nowhere({}, folder.Native());
    QVERIFY_THROWS_EXCEPTION(FileFailure, nowhere.Set(2025, 1000));
    folder.Write("stato", "a file in the place of the folder");
    Goals goals(folder.Native("stato/obiettivi"), folder.Native());
    QVERIFY_THROWS_EXCEPTION(FileFailure, goals.Set(2025, 1000));
    QVERIFY(!goals.Of(2025));
}

void GoalsTest::ItsPlace()
{
    qputenv("XDG_STATE_HOME", "/altrove");
    QCOMPARE(GoalFile().string(), std::string("/altrove/zelvia/obiettivi"));
    qunsetenv("XDG_STATE_HOME");
    qputenv("HOME", "/casa");
    QCOMPARE(GoalFile().string(), std::string("/casa/.local/state/zelvia/obiettivi"));
}

void GoalsTest::Standings_data()
{
    QTest::addColumn<int>("goal");
    QTest::addColumn<CalendarDate>("today");
    QTest::addColumn<QList<long>>("expected"); // done, due, ahead, left, days left, a week
    // 70 km of 366 in a leap year: a kilometre a day is due, and 1 March is its 61st day.
    QTest::newRow("ahead") << 366 << CalendarDate(2024, 3, 1)
                           << QList<long>{70'000, 61'000, 9'000, 296'000, 305, 6'793};
    QTest::newRow("behind") << 732 << CalendarDate(2024, 3, 1)
                            << QList<long>{70'000, 122'000, -52'000, 662'000, 305, 15'193};
    QTest::newRow("first day") << 366 << CalendarDate(2024, 1, 1)
                               << QList<long>{70'000, 1'000, 69'000, 296'000, 365, 5'676};
    QTest::newRow("last day") << 366 << CalendarDate(2024, 12, 31)
                              << QList<long>{70'000, 366'000, -296'000, 296'000, 0, 0};
    QTest::newRow("reached") << 70 << CalendarDate(2024, 3, 1) << QList<long>{70'000, 11'666, 58'334, 0, 305, 0};
    QTest::newRow("a past year") << 366 << CalendarDate(2026, 3, 1)
                                 << QList<long>{70'000, 366'000, -296'000, 296'000, 0, 0};
    QTest::newRow("a year to come") << 366 << CalendarDate(2023, 3, 1)
                                    << QList<long>{70'000, 0, 70'000, 296'000, 366, 5'661};
}

void GoalsTest::Standings()
{
    QFETCH(int, goal);
    QFETCH(CalendarDate, today);
    const std::vector<DiaryDay> days = {RunOf({2023, 12, 31}, 500'000), RunOf({2024, 1, 1}, 30'000),
                                        RunOf({2024, 2, 29}, 40'000), RunOf({2025, 1, 1}, 500'000)};
    const Standing found = StandingOf(days, 2024, goal, today);
    const QList<long> all = {found.done, found.due, found.ahead, found.left, found.daysLeft, found.aWeek};
    QTEST(all, "expected");
}

ZELVIA_TEST(GoalsTest)
#include "GoalsTest.moc"
