// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/KilometreTimes.h"

#include "support/TestProgram.h"
#include "tools/watch/FitFile.h"
#include "tools/watch/WatchFigures.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

Q_DECLARE_METATYPE(zelvia::Activity)

class KilometreTimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Cases_data();
    void Cases();
    void LapsOfARealRun();
    void AHundredAtMost();
};

namespace
{

QString Joined(const std::vector<KilometreTime>& times)
{
    QStringList list;
    for (const KilometreTime& time : times) {
        list << QStringLiteral("%1=%2").arg(time.km).arg(time.seconds);
    }
    return list.join(QLatin1Char(';'));
}

/// 2.5 km in 1000 seconds, 100 of them a pause.
Activity Run()
{
    Activity run;
    run.elapsed = 1000;
    run.moving = 900;
    run.metres = 2500;
    return run;
}

} // namespace

void KilometreTimesTest::Cases_data()
{
    QTest::addColumn<Activity>("run");
    QTest::addColumn<QString>("elapsed");
    QTest::addColumn<QString>("moving");
    const auto row = [](const char* name, const Activity& run, const char* elapsed, const char* moving) {
        QTest::newRow(name) << run << QString::fromLatin1(elapsed) << QString::fromLatin1(moving);
    };
    Activity run = Run();
    row("nothing but the sum", run, "", "");

    // 4 m/s up to 1200 m, 100 seconds of rest, then 1300 m in 600 seconds.
    run.track = {{0, 0}, {300, 1200}, {400, 1200}, {1000, 2500}};
    run.pauses = {{300, 400}};
    row("between two points", run, "1=250;2=769", "1=250;2=669");

    run.pauses.clear();
    row("pauses not told", run, "1=250;2=769", "1=225;2=692");

    run.laps = {{0, 500, 400, 1300}, {500, 500, 500, 1200}};
    row("pauses told by the laps", run, "1=250;2=769", "1=200;2=669");

    run.laps = {{0, 260, 240, 1000.4}, {260, 500, 420, 1000}, {760, 240, 240, 499.6}};
    row("laps of a kilometre", run, "1=260;2=760", "1=240;2=660");

    run = Run();
    run.metres = 1999.7;
    run.track = {{0, 0}, {500, 1000}, {990, 1999.4}};
    row("a full last kilometre", run, "1=500;2=990", "1=450;2=891");

    run.metres = 1999.4;
    row("no full last kilometre", run, "1=500", "1=450");
}

void KilometreTimesTest::Cases()
{
    QFETCH(Activity, run);
    QTEST(Joined(KilometreTimes(run, RunClock::Elapsed)), "elapsed");
    QTEST(Joined(KilometreTimes(run, RunClock::Moving)), "moving");
}

void KilometreTimesTest::LapsOfARealRun()
{
    // Its laps of 1 km in laps.tsv, added up.
    const Activity run = ReadFit(ReadWhole(WatchPath("run-pauses.fit"))).activities.at(0);
    QCOMPARE(Joined(KilometreTimes(run, RunClock::Elapsed)),
             QStringLiteral("1=158;2=304;3=520;4=798;5=931;6=1101;7=1233;8=1372;9=1513;10=1655"));
    QCOMPARE(Joined(KilometreTimes(run, RunClock::Moving)),
             QStringLiteral("1=154;2=300;3=465;4=624;5=757;6=905;7=1037;8=1176;9=1317;10=1459"));
}

void KilometreTimesTest::AHundredAtMost()
{
    Activity run = Run();
    run.elapsed = run.moving = 50'000;
    run.metres = 120'000;
    run.track = {{0, 0}, {50'000, 120'000}};
    QCOMPARE(KilometreTimes(run, RunClock::Elapsed).size(), std::size_t{100});
}

ZELVIA_TEST(KilometreTimesTest)
#include "KilometreTimesTest.moc"
