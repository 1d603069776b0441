// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One day against one row of the plan, group by group.
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/TableWalk.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::ForgetDays;
using zelvia::test::MessageScript;
using zelvia::test::TextOf;

class RowComparisonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Failures_data();
    void Failures();
    void ThousandthsAreNotCompared();
    void RowAndDayByNumber();
    void Errors_data();
    void Errors();
};

namespace
{

QByteArrayList Parts(const QByteArray& text, int count)
{
    const QByteArrayList parts = text.split('|');
    if (parts.size() != count) {
        qFatal("%d parts are needed: %s", count, text.constData());
    }
    return parts;
}

/// km|metres|h m s|m s|pace|terrain|times x distance @ minutes seconds
PlanRow RowOf(const QByteArray& text)
{
    const QByteArrayList parts = Parts(text, 7);
    const QByteArrayList time = parts[2].split(' ');
    const QByteArrayList average = parts[3].split(' ');
    const QByteArrayList repetitions = parts[6].split(' ');
    return {parts[0].toInt(),
            parts[1].toInt(),
            time.value(0).toInt(),
            time.value(1).toInt(),
            time.value(2).toInt(),
            average.value(0).toInt(),
            average.value(1).toInt(),
            TextOf(parts[4]),
            TextOf(parts[5]),
            repetitions.value(0).toInt(),
            repetitions.value(1).toInt(),
            repetitions.value(2).toInt(),
            repetitions.value(3).toInt()};
}

/// The same with the two times as the page shows them.
RecordGiorno DayOf(const QByteArray& text)
{
    const QByteArrayList parts = Parts(text, 7);
    const QByteArrayList repetitions = parts[6].split(' ');
    RecordGiorno day;
    day.Km = parts[0].toInt();
    day.Metri = parts[1].toInt();
    day.TempoImpiegato = TextOf(parts[2]);
    day.MediaKm = TextOf(parts[3]);
    day.Modo = TextOf(parts[4]);
    day.Fondo = TextOf(parts[5]);
    day.Ripetizioni = repetitions.value(0).toInt();
    day.RipetizioniDistanza = repetitions.value(1).toInt();
    day.RipetizioniQuante = repetitions.value(2).toInt();
    day.RipetizioniTempi = repetitions.value(3).toInt();
    return day;
}

void Put(const char* name, const char* row, const char* day, int failures)
{
    QTest::newRow(name) << QByteArray(row) << QByteArray(day) << failures;
}

} // namespace

void RowComparisonTest::Failures_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("day");
    QTest::addColumn<int>("failures");

    // Nothing asked, nothing done.
    Put("rest: an empty day", "0|0|||||", "0|0|||||", 0);
    Put("rest: zeros of a blank day", "0|0|||||", "0|0|0:00:00|0:00|||0 0 0 0", 0);
    Put("rest: blanks are nothing", "0|0|||  |   |", "0|0||| |  |", 0);
    Put("rest: a distance was run", "0|0|||||", "0|10|||||", 1);
    Put("rest: a time was run", "0|0|||||", "0|0|0:00:01||||", 1);
    Put("rest: an average stands there", "0|0|||||", "0|0||0:01|||", 1);
    Put("rest: a pace stands there", "0|0|||||", "0|0|||Lenta||", 1);
    Put("rest: a terrain stands there", "0|0|||||", "0|0||||Strada|", 1);
    Put("rest: repetitions were run", "0|0|||||", "0|0|||||1", 1);
    Put("rest: all of it was run", "0|0|||||", "10|0|0:50:00|5:00|Lenta|Strada|1", 1);
    Put("rest: repetitions without a count are none", "0|0|||||", "0|0|||||0 400 1 30", 0);
    Put("rest: repetitions planned without a count", "0|0|||||0 400 1 30", "0|0|||||", 0);
    Put("an empty day fails each group asked", "10|0|0 50 0|5 0|Media|Strada|5 400 1 30", "0|0|||||", 6);
    Put("all six met", "10|0|0 50 0|5 0|Media|Strada|5 400 1 30", "10|0|0:50:00|5:00|Media|Strada|5 400 1 30", 0);
    Put("all six failed", "10|0|0 50 0|5 0|Media|Strada|5 400 1 30", "9|0|0:49:00|5:30|Lenta|Pista|4 400 1 30", 6);

    Put("distance: the same", "10|500|||||", "10|500|||||", 0);
    Put("distance: a kilometre less", "10|0|||||", "9|990|||||", 1);
    Put("distance: a kilometre more", "10|500|||||", "11|0|||||", 0);
    Put("distance: ten metres less", "10|500|||||", "10|490|||||", 1);
    Put("distance: ten metres more", "10|500|||||", "10|510|||||", 0);
    Put("distance: metres alone asked", "0|500|||||", "0|500|||||", 0);
    Put("distance: metres alone missed", "0|500|||||", "0|490|||||", 1);
    Put("distance: not asked", "0|0||5 0|||", "3|0||5:00|||", 0);

    Put("time: the same", "0|0|1 2 3||||", "0|0|1:02:03||||", 0);
    Put("time: an hour less", "0|0|1 2 3||||", "0|0|0:59:59||||", 1);
    Put("time: an hour more", "0|0|1 2 3||||", "0|0|2:00:00||||", 0);
    Put("time: a minute less", "0|0|1 2 3||||", "0|0|1:01:59||||", 1);
    Put("time: a minute more", "0|0|1 2 3||||", "0|0|1:03:00||||", 0);
    Put("time: a second less", "0|0|1 2 3||||", "0|0|1:02:02||||", 1);
    Put("time: a second more", "0|0|1 2 3||||", "0|0|1:02:04||||", 0);
    Put("time: points part it", "0|0|1 2 3||||", "0|0|1.02.03||||", 0);
    Put("time: both signs part it", "0|0|1 2 3||||", "0|0|1:02.03||||", 0);
    Put("time: one separator is no time", "0|0|0 2 3||||", "0|0|02:03||||", 1);
    Put("time: one separator leaves the day empty", "0|0|||||", "0|0|50:00||||", 0);
    Put("time: a comma does not part it", "0|0|0 0 1||||", "0|0|1,02,03||||", 1);
    Put("time: none at all", "0|0|0 0 1||||", "0|0|55||||", 1);
    Put("time: the third part ends at the next separator", "0|0|1 2 3||||", "0|0|1:02:03:59||||", 0);
    Put("time: empty parts are zeros", "0|0|0 0 3||||", "0|0|::3||||", 0);
    Put("time: separators side by side", "0|0|0 1 0||||", "0|0|0::59||||", 1);

    Put("average: the same", "0|0||5 30|||", "0|0||5:30|||", 0);
    Put("average: a second faster", "0|0||5 30|||", "0|0||5:29|||", 0);
    Put("average: a second slower", "0|0||5 30|||", "0|0||5:31|||", 1);
    Put("average: a minute faster", "0|0||5 30|||", "0|0||4:59|||", 0);
    Put("average: a minute slower", "0|0||5 30|||", "0|0||6:00|||", 1);
    Put("average: none run", "0|0||5 30|||", "0|0||0:00|||", 1);
    Put("average: no text", "0|0||5 30|||", "0|0|||||", 1);
    Put("average: a comma parts it", "0|0||5 30|||", "0|0||5,30|||", 0);
    Put("average: a comma parts it, slower", "0|0||5 30|||", "0|0||5,31|||", 1);
    Put("average: a point does not part it", "0|0||5 30|||", "0|0||5.30|||", 1);
    Put("average: the first separator counts", "0|0||5 30|||", "0|0||5:29,59|||", 0);
    Put("average: no separator is none", "0|0||5 30|||", "0|0||4|||", 1);
    Put("average: seconds alone asked", "0|0||0 45|||", "0|0||0:45|||", 0);

    Put("pace: the same", "0|0|||Media||", "0|0|||Media||", 0);
    Put("pace: case does not matter", "0|0|||MEDIA||", "0|0|||media||", 0);
    Put("pace: case of an accented letter neither", "0|0|||CITT\xC0||", "0|0|||citt\xE0||", 0);
    Put("pace: outer blanks do not matter", "0|0|||  Media||", "0|0|||Media ||", 0);
    Put("pace: inner blanks do", "0|0|||Media  Veloce||", "0|0|||Media Veloce||", 1);
    Put("pace: another", "0|0|||Media||", "0|0|||Lenta||", 1);
    Put("pace: a part of it", "0|0|||Media||", "0|0|||Media/Veloce||", 1);
    Put("pace: none run", "0|0|||Media||", "0|0|||||", 1);
    Put("pace: blanks ask nothing", "1|0||| ||", "1|0|||Lenta||", 0);

    Put("terrain: the same", "0|0||||Strada|", "0|0||||Strada|", 0);
    Put("terrain: case and blanks do not matter", "0|0|||| strada|", "0|0||||STRADA  |", 0);
    Put("terrain: another", "0|0||||Strada|", "0|0||||Pista|", 1);
    Put("terrain: none", "0|0||||Strada|", "0|0||||  |", 1);
    Put("terrain is not pace", "0|0||||Strada|", "0|0|||Strada||", 1);

    Put("repetitions: the same", "0|0|||||5 400 1 30", "0|0|||||5 400 1 30", 0);
    Put("repetitions: one more", "0|0|||||5 400 1 30", "0|0|||||6 400 1 30", 0);
    Put("repetitions: one less", "0|0|||||5 400 1 30", "0|0|||||4 400 1 30", 1);
    Put("repetitions: longer", "0|0|||||5 400 1 30", "0|0|||||5 500 1 30", 0);
    Put("repetitions: shorter", "0|0|||||5 400 1 30", "0|0|||||5 399 1 30", 1);
    Put("repetitions: a second faster", "0|0|||||5 400 1 30", "0|0|||||5 400 1 29", 0);
    Put("repetitions: a second slower", "0|0|||||5 400 1 30", "0|0|||||5 400 1 31", 1);
    Put("repetitions: a minute faster", "0|0|||||5 400 1 30", "0|0|||||5 400 0 59", 0);
    Put("repetitions: a minute slower", "0|0|||||5 400 1 30", "0|0|||||5 400 2 0", 1);
    Put("repetitions: too few and too slow is one failure", "0|0|||||5 400 1 30", "0|0|||||4 300 2 0", 1);
    Put("repetitions: a count alone", "0|0|||||5", "0|0|||||5", 0);
    Put("repetitions: a count alone, but a time run", "0|0|||||5", "0|0|||||5 400 1 30", 1);
    Put("repetitions: no time entered is fast", "0|0|||||5 400 1 30", "0|0|||||5 400 0 0", 0);
}

void RowComparisonTest::Failures()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, day);
    QTEST(int{FailedDemands(DayOf(day), RowOf(row)).value()}, "failures");
}

void RowComparisonTest::ThousandthsAreNotCompared()
{
    ForgetDays();
    AzzeraTabella();
    MessageScript boxes;
    TabMediaMillesimi[1] = 999;
    i16 result = 7;
    ControlloAllenamento(1, 1, result);
    QCOMPARE(int{result.value()}, 0); // Still a row that asks for nothing.
    TabMediaMinuti[1] = 5;
    TabMediaMillesimi[1] = 0;
    Giorni[1].MediaKm = "5:00";
    ControlloAllenamento(1, 1, result);
    QCOMPARE(int{result.value()}, 0);
    QCOMPARE(boxes.Shown(), 0);
}

void RowComparisonTest::RowAndDayByNumber()
{
    ForgetDays();
    AzzeraTabella();
    MessageScript boxes;
    TabKm[31] = 7;
    Giorni[366].Km = 7;
    i16 result = 5;
    ControlloAllenamento(366, 31, result);
    QCOMPARE(int{result.value()}, 0);
    ControlloAllenamento(365, 31, result);
    QCOMPARE(int{result.value()}, 1);
    ControlloAllenamento(366, 30, result);
    QCOMPARE(int{result.value()}, 1);
    ControlloAllenamento(365, 30, result);
    QCOMPARE(int{result.value()}, 0);
    QCOMPARE(boxes.Shown(), 0);
}

void RowComparisonTest::Errors_data()
{
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<int>("number");
    QTest::newRow("a row past the last") << 1 << 32 << QByteArray() << 9;
    QTest::newRow("a row before the first") << 1 << -1 << QByteArray() << 9;
    QTest::newRow("a day past the last") << 367 << 1 << QByteArray() << 9;
    QTest::newRow("a day before the first") << -1 << 1 << QByteArray() << 9;
    QTest::newRow("a time beyond 16 bits") << 1 << 1 << QByteArray("40000:00:00") << 6;
}

void RowComparisonTest::Errors()
{
    QFETCH(int, day);
    QFETCH(int, row);
    QFETCH(QByteArray, time);
    QFETCH(int, number);
    ForgetDays();
    AzzeraTabella();
    Giorni[1].TempoImpiegato = TextOf(time);
    MessageScript boxes;
    boxes.ExpectError("ControlloAllenamento - ERRORE : ", number);
    i16 result = 3;
    ControlloAllenamento(day, row, result);
    QVERIFY(boxes.AllShown());
    QCOMPARE(int{result.value()}, 3);
}

ZELVIA_TEST(RowComparisonTest)
#include "RowComparisonTest.moc"
