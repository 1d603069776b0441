// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/DayProposal.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cstdlib>
#include <ctime>

using namespace zelvia;
using namespace zelvia::test;

class DayProposalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Clocks_data();
    void Clocks();
    void Ends_data();
    void Ends();
    void Distances_data();
    void Distances();
    void Seasons_data();
    void Seasons();
    void Sports_data();
    void Sports();
    void ADay();
    void WhatTheWatchDoesNotKnowStays();
    void WhatADayHolds();
    void APaceThatThePageCantShow();
};

namespace
{

/// 1 May 2024, 08:00:00 UTC; 12.3456 km in 1:00:00, 0:50:00 of it moving.
Activity Run()
{
    Activity run;
    run.sport = "running";
    run.start = 1'714'550'400;
    run.elapsed = 3600;
    run.moving = 3000;
    run.metres = 12'345.6;
    run.track = {{0, 0}, {1800, 6'172.8}, {3600, 12'345.6}};
    return run;
}

} // namespace

void DayProposalTest::init()
{
    qputenv("TZ", "Europe/Rome");
    tzset();
}

void DayProposalTest::Clocks_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<QVariant>("own");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("source");
    const auto row = [](const char* name, qint64 start, const QVariant& own, const QVariant& given,
                        const char* expected, ClockSource source) {
        QTest::newRow(name) << start << own << given << QString::fromLatin1(expected) << static_cast<int>(source);
    };
    row("summer time of the computer", 1'714'550'400, {}, {}, "2024-05-01 10:00:00", ClockSource::Computer);
    row("winter time of the computer", 1'704'096'000, {}, {}, "2024-01-01 09:00:00", ClockSource::Computer);
    row("the watch's own", 1'714'550'400, -14'400, {}, "2024-05-01 04:00:00", ClockSource::File);
    row("the day before", 1'714'550'400, -36'000, {}, "2024-04-30 22:00:00", ClockSource::File);
    row("the day after", 1'714'550'400, 57'600, {}, "2024-05-02 00:00:00", ClockSource::File);
    row("the one given", 1'714'550'400, -14'400, 19'800, "2024-05-01 13:30:00", ClockSource::Given);
}

void DayProposalTest::Clocks()
{
    QFETCH(qint64, start);
    QFETCH(QVariant, own);
    QFETCH(QVariant, given);
    QFETCH(int, source);
    Activity run = Run();
    run.start = start;
    run.offset = own.isValid() ? std::optional(own.toInt()) : std::nullopt;
    ProposalRules rules;
    rules.offset = given.isValid() ? std::optional(given.toInt()) : std::nullopt;
    const DayProposal day = ProposeDay(run, rules);
    const QString date = QString::fromLatin1(Bytes(Format(day.date, "yyyy-mm-dd")));
    QTEST(date + QTime(0, 0).addSecs(day.start).toString(QStringLiteral(" HH:mm:ss")), "expected");
    QCOMPARE(static_cast<int>(day.source), source);
}

void DayProposalTest::Ends_data()
{
    QTest::addColumn<QString>("begin");
    QTest::addColumn<double>("elapsed");
    QTest::addColumn<bool>("moving");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("remarks");
    const int ten = 36'000;
    QTest::newRow("elapsed") << "08:00:00" << 3600.4 << false << ten << ten + 3600 << 0;
    QTest::newRow("half a second more") << "08:00:00" << 3600.5 << false << ten << ten + 3601 << 0;
    QTest::newRow("moving") << "08:00:00" << 3600.0 << true << ten << ten + 3000 << 0;
    // 23:30 in Rome; the page takes ends up to 24:59:59, second 89999 of the day.
    QTest::newRow("past midnight") << "21:30:00" << 3600.0 << false << 84'600 << 88'200 << 0;
    QTest::newRow("past one o'clock") << "21:30:00" << 7200.0 << false << 82'799 << 89'999 << 1;
    QTest::newRow("more than a day") << "08:00:00" << 100'000.0 << false << 0 << 0 << 1;
}

void DayProposalTest::Ends()
{
    QFETCH(QString, begin);
    QFETCH(double, elapsed);
    QFETCH(bool, moving);
    Activity run = Run();
    run.start += QTime(8, 0).secsTo(QTime::fromString(begin));
    run.elapsed = elapsed;
    ProposalRules rules;
    rules.clock = moving ? RunClock::Moving : RunClock::Elapsed;
    const DayProposal day = ProposeDay(run, rules);
    QTEST(day.start, "start");
    QTEST(day.end, "end");
    QTEST(static_cast<int>(day.remarks.size()), "remarks");
}

void DayProposalTest::Distances_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metres");
    QTest::newRow("rounded down") << 10'207.4 << 10 << 207;
    QTest::newRow("rounded up") << 10'207.5 << 10 << 208;
    QTest::newRow("to a whole kilometre") << 9'999.6 << 10 << 0;
    QTest::newRow("the most") << 500'999.0 << 500 << 999;
    QTest::newRow("more than that") << 501'000.0 << 0 << 0;
}

void DayProposalTest::Distances()
{
    QFETCH(double, distance);
    Activity run = Run();
    run.metres = distance;
    const DayProposal day = ProposeDay(run, {});
    QTEST(day.km, "km");
    QTEST(day.metres, "metres");
    QCOMPARE(day.remarks.empty(), distance < 501'000);
}

void DayProposalTest::Seasons_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::addColumn<QByteArray>("season");
    QTest::newRow("1/1") << 1 << 1 << QByteArray("Inverno");
    QTest::newRow("20/3") << 3 << 20 << QByteArray("Inverno");
    QTest::newRow("21/3") << 3 << 21 << QByteArray("Primavera");
    QTest::newRow("20/6") << 6 << 20 << QByteArray("Primavera");
    QTest::newRow("21/6") << 6 << 21 << QByteArray("Estate");
    QTest::newRow("22/9") << 9 << 22 << QByteArray("Estate");
    QTest::newRow("23/9") << 9 << 23 << QByteArray("Autunno");
    QTest::newRow("20/12") << 12 << 20 << QByteArray("Autunno");
    QTest::newRow("21/12") << 12 << 21 << QByteArray("Inverno");
}

void DayProposalTest::Seasons()
{
    QFETCH(int, month);
    QFETCH(int, day);
    QTEST(Bytes(SeasonOf(CalendarDate(2024, static_cast<unsigned>(month), static_cast<unsigned>(day)))), "season");
}

void DayProposalTest::Sports_data()
{
    QTest::addColumn<QString>("sport");
    QTest::addColumn<bool>("run");
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("running") << "running" << true << QByteArray("Allenamento");
    QTest::newRow("trail_running") << "trail_running" << true << QByteArray("Allenamento");
    QTest::newRow("numbered") << "9" << true << QByteArray("Allenamento");
    QTest::newRow("jogging") << "jogging" << true << QByteArray("Allenamento");
    QTest::newRow("another number") << "1" << false << QByteArray("Allenamento");
    QTest::newRow("not told") << "" << true << QByteArray("Allenamento");
    QTest::newRow("cycling") << "cycling" << false << QByteArray("Bicicletta");
    QTest::newRow("swimming") << "swimming" << false << QByteArray("Nuoto");
    QTest::newRow("other") << "other" << false << QByteArray("Allenamento");
}

void DayProposalTest::Sports()
{
    QFETCH(QString, sport);
    Activity activity = Run();
    activity.sport = sport.toStdString();
    QTEST(IsRun(activity), "run");
    QTEST(Bytes(ProposeDay(activity, {}).type), "type");
}

void DayProposalTest::ADay()
{
    RecordGiorno day;
    PutInto(day, ProposeDay(Run(), {}));
    RecordGiorno expected;
    expected.Km = 12;
    expected.Metri = 346;
    expected.Tipo = "Allenamento";
    expected.OraInizio = 10;
    expected.OraFine = 11;
    expected.TempoImpiegato = "1:00:00";
    expected.MediaKm = "4:51"; // 3600 / 12.346 = 291.59 seconds.
    // 291.6 seconds each.
    expected.ListaKm[0] = "01      00:04:52";
    expected.ListaKm[1] = "02      00:09:43";
    expected.ListaKm[2] = "03      00:14:35";
    expected.ListaKm[3] = "04      00:19:26";
    expected.ListaKm[4] = "05      00:24:18";
    expected.ListaKm[5] = "06      00:29:10";
    expected.ListaKm[6] = "07      00:34:01";
    expected.ListaKm[7] = "08      00:38:53";
    expected.ListaKm[8] = "09      00:43:44";
    expected.ListaKm[9] = "10      00:48:36";
    expected.ListaKm[10] = "11      00:53:28";
    expected.ListaKm[11] = "12      00:58:19";
    expected.Stagione = "Primavera";
    QCOMPARE(Bytes(day.MediaKm), Bytes(expected.MediaKm));
    for (int i = 0; i < 12; ++i) {
        QCOMPARE(Bytes(day.ListaKm[i]), Bytes(expected.ListaKm[i]));
    }
    QVERIFY(day == expected);
}

void DayProposalTest::WhatTheWatchDoesNotKnowStays()
{
    RecordGiorno day;
    day.Percorso = "Parco";
    day.Peso = 70;
    day.Note[3] = "bella corsa";
    day.ListaKm[20] = "21      01:00:00";
    PutInto(day, ProposeDay(Run(), {}));
    QCOMPARE(Bytes(day.Percorso), QByteArray("Parco"));
    QVERIFY(day.Peso == 70);
    QCOMPARE(Bytes(day.Note[3]), QByteArray("bella corsa"));
    QVERIFY(day.ListaKm[20].empty());
}

void DayProposalTest::WhatADayHolds()
{
    const DayProposal proposal = ProposeDay(Run(), {});
    RecordGiorno day;
    QVERIFY(!HoldsRun(day));
    day.Peso = 70;
    day.Note[3] = "riposo";
    day.TempoImpiegato = "0:00:00";
    QVERIFY(!HoldsRun(day));
    day.Tipo = "Allenamento";
    QVERIFY(HoldsRun(day));
    QVERIFY(!HoldsSame(day, proposal));
    PutInto(day, proposal);
    QVERIFY(HoldsSame(day, proposal));
    // Another file of the same run: 60 seconds and 123 m of 12,346 are within the bounds.
    day.Metri = 223;
    day.MinutiInizio = 1;
    QVERIFY(HoldsSame(day, proposal));
    day.Metri = 222;
    QVERIFY(!HoldsSame(day, proposal));
    day.Metri = 346;
    day.SecondiInizio = 1;
    QVERIFY(!HoldsSame(day, proposal));
}

void DayProposalTest::APaceThatThePageCantShow()
{
    Activity run = Run();
    run.metres = 1;
    RecordGiorno day;
    PutInto(day, ProposeDay(run, {}));
    QCOMPARE(Bytes(day.TempoImpiegato), QByteArray("1:00:00"));
    QCOMPARE(Bytes(day.MediaKm), QByteArray("0:00"));
}

ZELVIA_TEST(DayProposalTest)
#include "DayProposalTest.moc"
