// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the calendar's dates.
#include "diary/CalendarDates.h"

#include "diary/CalendarModel.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;

class CalendarDatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { AzzeraCalendario(); }
    void Corrections_data();
    void Corrections();
    void TheYearOfACorrectionIsThatShown();
    void AYearBeyondALong();
    void DoubleDates_data();
    void DoubleDates();
    void TheMessageOfADoubleDate();
    void RaceOfADay_data();
    void RaceOfADay();
};

namespace
{

void PutDate(int row, const QByteArray& date)
{
    const QByteArrayList parts = date.split('/');
    GiornoGara[row] = parts[0].toInt();
    MeseGara[row] = parts[1].toInt();
    AnnoGara[row] = parts[2].toInt();
}

/// "7=10/5/2026 57=8/2/2026": rows and their dates.
void PutDates(const QByteArray& rows)
{
    for (const QByteArray& row : rows.split(' ')) {
        if (!row.isEmpty()) {
            PutDate(row.split('=')[0].toInt(), row.split('=')[1]);
        }
    }
}

} // namespace

void CalendarDatesTest::Corrections_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("told"); // Each message with the box and the text that it gives it, or "-".
    const auto row = [](const char* date, const QByteArray& told) {
        QTest::newRow(*date == '\0' ? "nothing" : date) << QByteArray(date) << told;
    };
    const QByteArray max30 = "[ ERRORE AL N\xB0 7 :  MAX 30 GIORNI |G30]";
    const QByteArray max29 = "[ ERRORE AL N\xB0 7 :  MAX 29 GIORNI |G29]";
    const QByteArray max28 = "[ ERRORE AL N\xB0 7 :  MAX 28 GIORNI |G28]";
    const QByteArray noDay = "[ MANCA AL N\xB0 7 :   GIORNO   |-]";
    const QByteArray noMonth = "[ MANCA AL N\xB0 7 :   MESE   |-]";
    const QByteArray year = "[ MODIFICA AL N\xB0 7 :   ANNO 2026  |A2026]";
    row("0/0/0", {});
    row("1/1/2007", {});
    row("31/12/2099", {});
    for (const char* shortMonth : {"31/4/2026", "31/6/2026", "31/9/2026", "31/11/2026", "99/4/2026"}) {
        row(shortMonth, max30);
    }
    for (const char* whole : {"30/4/2026", "30/6/2026", "30/9/2026", "30/11/2026"}) {
        row(whole, {});
    }
    for (const char* longMonth : {"31/1/2026", "31/3/2026", "31/5/2026", "31/7/2026", "31/8/2026", "31/10/2026"}) {
        row(longMonth, {});
    }
    row("29/2/2008", {});
    row("30/2/2008", max29);
    row("28/2/2009", {});
    row("29/2/2009", max28);
    row("30/2/2009", max28);
    row("31/2/2010", max28);
    row("29/2/2100", {});
    row("30/2/2100", max29);
    row("5/5/2006", year);
    row("5/5/2007", {});
    row("0/0/2026", noDay + noMonth);
    row("0/0/2006", noDay + noMonth + year);
    row("0/0/1", noDay + noMonth + year);
    row("5/0/0", noMonth + year);
    row("0/5/0", noDay + year);
    row("5/5/0", year);
    row("5/0/2026", noMonth);
    row("0/5/2026", noDay);
    // An empty year has a 29 February, and then becomes one that has none.
    row("30/2/0", max29 + year);
    row("31/4/2006", max30 + year);
    row("31/4/0", max30 + year);
    // The limits of the boxes are not tested here.
    row("40/13/2026", {});
}

void CalendarDatesTest::Corrections()
{
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, told);
    const QByteArrayList parts = date.split('/');
    QByteArray got;
    for (const DateCorrection& correction :
         CorrectDate({parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble()}, 7, 2026)) {
        const char* boxes[] = {"-", "G", "A"};
        got += '[' + Bytes(correction.message.text) + '|' + boxes[static_cast<int>(correction.field)] +
               Bytes(correction.value) + ']';
    }
    QCOMPARE(got, told);
}

void CalendarDatesTest::TheYearOfACorrectionIsThatShown()
{
    const auto corrections = CorrectDate({1, 1, 0}, 100, 2099);
    QCOMPARE(corrections.size(), std::size_t{1});
    QCOMPARE(Bytes(corrections[0].message.text), QByteArray(" MODIFICA AL N\xB0 100 :   ANNO 2099  "));
    QCOMPARE(Bytes(corrections[0].value), QByteArray("2099"));
}

void CalendarDatesTest::AYearBeyondALong()
{
    QCOMPARE(RaisedBy([] { (void)CorrectDate({1, 1, 9999999999.0}, 1, 2026); }), 6);
}

void CalendarDatesTest::DoubleDates_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QByteArray>("pairs");
    const auto row = [](const char* name, const char* rows, const char* pairs) {
        QTest::newRow(name) << QByteArray(rows) << QByteArray(pairs);
    };
    row("none", "", "");
    row("two races on two dates", "1=10/5/2026 2=11/5/2026", "");
    row("another month", "1=10/5/2026 2=10/6/2026", "");
    row("another year", "1=10/5/2026 2=10/5/2027", "");
    row("neighbours", "1=10/5/2026 2=10/5/2026", "1+2 ");
    row("first and last", "1=10/5/2026 100=10/5/2026", "1+100 ");
    row("three of a kind", "3=10/5/2026 50=10/5/2026 99=10/5/2026", "3+50 3+99 50+99 ");
    row("two pairs", "1=1/1/2026 2=2/2/2026 3=1/1/2026 4=2/2/2026", "1+3 2+4 ");
    row("free rows with a month and a year", "1=0/5/2026 2=0/5/2026", "");
    row("days without month and year", "1=5/0/0 2=5/0/0", "1+2 ");
}

void CalendarDatesTest::DoubleDates()
{
    QFETCH(QByteArray, rows);
    QFETCH(QByteArray, pairs);
    PutDates(rows);
    QByteArray got;
    for (const auto& [first, second] : SameDates()) {
        got += QByteArray::number(int{first.value()}) + '+' + QByteArray::number(int{second.value()}) + ' ';
    }
    QCOMPARE(got, pairs);
}

void CalendarDatesTest::TheMessageOfADoubleDate()
{
    PutDates("7=5/9/2026 21=5/9/2026");
    QCOMPARE(Bytes(SameDatesMessage(7, 21).text), QByteArray("5-9-2026   DATA PRESENTE AL  N\xB0 7  E AL N\xB0 21  "));
}

void CalendarDatesTest::RaceOfADay_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<int>("race");
    QTest::newRow("no race") << QByteArray() << 0;
    QTest::newRow("the day") << QByteArray("57=24/5/2026") << 57;
    QTest::newRow("the last row") << QByteArray("100=24/5/2026") << 100;
    QTest::newRow("another year") << QByteArray("1=24/5/2025") << 0;
    QTest::newRow("another month") << QByteArray("1=24/4/2026") << 0;
    QTest::newRow("another day") << QByteArray("1=25/5/2026") << 0;
    QTest::newRow("the lower of two") << QByteArray("9=24/5/2026 4=24/5/2026") << 4;
}

void CalendarDatesTest::RaceOfADay()
{
    QFETCH(QByteArray, rows);
    QFETCH(int, race);
    PutDates(rows);
    QCOMPARE(int{RaceOnDate(24, 5, 2026).value()}, race);
}

ZELVIA_TEST(CalendarDatesTest)
#include "CalendarDatesTest.moc"
