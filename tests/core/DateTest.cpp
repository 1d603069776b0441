// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"

#include "core/Conversions.h"
#include "support/Bytes.h"
#include "support/FixedClock.h"
#include "support/TestProgram.h"

#include <QTest>

#include <ctime>

using namespace zelvia;
using namespace zelvia::test;

class DateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DateValueReadsDayMonthYear_data();
    void DateValueReadsDayMonthYear();
    void DateAddOfDays_data();
    void DateAddOfDays();
    void DateAddOfMonths_data();
    void DateAddOfMonths();
    void DateAddRefusals();
    void DayOfTheYear_data();
    void DayOfTheYear();
    void LongFormIsItalian_data();
    void LongFormIsItalian();
    void EveryDayOfFourCenturiesFollowsTheOneBefore();
    void OrderAndFirstValue();
    void ConstructorRefusesWhatIsNoDay();
    void SystemDateComesFromTheClock();
};

namespace
{

QByteArray Short(CalendarDate date)
{
    return Bytes(PlainText(date));
}

} // namespace

void DateTest::DateValueReadsDayMonthYear_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("date"); // Empty where error 13 is due.
    const auto row = [](const char* text, const char* date) {
        QTest::newRow(*text != '\0' ? text : "(empty)") << QByteArray(text) << QByteArray(date);
    };
    row("01/03/2008", "01/03/2008");
    row("1/3/2008", "01/03/2008");
    row(" 01/03/2008 ", "01/03/2008");
    row("1/ 3/2008", "01/03/2008");
    row("1 /3 / 2008", "01/03/2008");
    row("29/02/2008", "29/02/2008");
    row("29/02/2000", "29/02/2000");
    row("31/12/9999", "31/12/9999");
    row("01/01/0100", "01/01/0100");
    // Short years.
    row("01/03/0", "01/03/2000");
    row("01/03/5", "01/03/2005");
    row("01/03/ 9 ", "01/03/2009");
    row("01/03/00", "01/03/2000");
    row("01/03/08", "01/03/2008");
    row("01/03/29", "01/03/2029");
    row("01/03/30", "01/03/1930");
    row("01/03/99", "01/03/1999");
    row("29/02/0", "29/02/2000");
    row("29/02/30", "");
    row("01/03/126", "");
    row("01/03/100", "");
    row("01/03/008", "");
    row("01/03/999", "");
    row("01/03/0008", "");
    row("13/01/2008", "13/01/2008");
    row("", "");
    row(" ", "");
    row("29/02/2007", "");
    row("29/02/1900", "");
    row("31/04/2008", "");
    row("32/01/2008", "");
    row("01/13/2008", "");
    row("00/01/2008", "");
    row("01/00/2008", "");
    row("01/01/0000", "");
    row("01/01/10000", "");
    row("01/01", "");
    row("01/01/", "");
    row("//", "");
    row(" / / ", "");
    row("0 1/03/2008", "");
    row("/01/2008", "");
    row("a/b/c", "");
    row("01/03/2008/1", "");
    row("-1/03/2008", "");
    row("01/-3/2008", "");
    row("01/03/-8", "");
    row("01/03/-0", "");
    row("01/03/-200", "");
    row("001/03/2008", "");
    row("1.5/03/2008", "");
    row("marzo", "");
}

void DateTest::DateValueReadsDayMonthYear()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, date);
    QByteArray read;
    QCOMPARE(RaisedBy([&] { read = Short(DateValue(TextOf(text))); }), date.isEmpty() ? 13 : 0);
    QCOMPARE(read, date);
}

void DateTest::DateAddOfDays_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<int>("days");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("one day") << QByteArray("01/01/2007") << 1 << QByteArray("02/01/2007");
    QTest::newRow("into March, common year") << QByteArray("28/02/2007") << 1 << QByteArray("01/03/2007");
    QTest::newRow("into 29 February") << QByteArray("28/02/2008") << 1 << QByteArray("29/02/2008");
    QTest::newRow("over the year") << QByteArray("31/12/2007") << 1 << QByteArray("01/01/2008");
    QTest::newRow("back over the year") << QByteArray("01/01/2008") << -1 << QByteArray("31/12/2007");
    QTest::newRow("none") << QByteArray("15/06/2007") << 0 << QByteArray("15/06/2007");
    QTest::newRow("a leap year") << QByteArray("01/01/2008") << 366 << QByteArray("01/01/2009");
    QTest::newRow("from the first to the last") << QByteArray("01/01/0100") << 3615899 << QByteArray("31/12/9999");
}

void DateTest::DateAddOfDays()
{
    QFETCH(QByteArray, from);
    QFETCH(int, days);
    QFETCH(QByteArray, to);
    QCOMPARE(Short(DateAdd("d", days, DateValue(TextOf(from)))), to);
    QCOMPARE(Short(DateAdd("d", -days, DateValue(TextOf(to)))), Short(DateValue(TextOf(from))));
}

void DateTest::DateAddOfMonths_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<int>("months");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("31 January, common") << QByteArray("31/01/2007") << 1 << QByteArray("28/02/2007");
    QTest::newRow("31 January, leap") << QByteArray("31/01/2008") << 1 << QByteArray("29/02/2008");
    QTest::newRow("a further month keeps 28") << QByteArray("28/02/2007") << 1 << QByteArray("28/03/2007");
    QTest::newRow("a further month keeps 29") << QByteArray("29/02/2008") << 1 << QByteArray("29/03/2008");
    QTest::newRow("two months at once keep 31") << QByteArray("31/01/2007") << 2 << QByteArray("31/03/2007");
    QTest::newRow("31 March to April") << QByteArray("31/03/2007") << 1 << QByteArray("30/04/2007");
    QTest::newRow("back to February") << QByteArray("31/03/2007") << -1 << QByteArray("28/02/2007");
    QTest::newRow("over the year") << QByteArray("15/12/2007") << 1 << QByteArray("15/01/2008");
    QTest::newRow("back over the year") << QByteArray("15/01/2008") << -1 << QByteArray("15/12/2007");
    QTest::newRow("a year from 29 February") << QByteArray("29/02/2008") << 12 << QByteArray("28/02/2009");
    QTest::newRow("none") << QByteArray("31/12/2099") << 0 << QByteArray("31/12/2099");
}

void DateTest::DateAddOfMonths()
{
    QFETCH(QByteArray, from);
    QFETCH(int, months);
    QFETCH(QByteArray, to);
    QCOMPARE(Short(DateAdd("m", months, DateValue(TextOf(from)))), to);
}

void DateTest::DateAddRefusals()
{
    const CalendarDate last(9999, 12, 31);
    const CalendarDate first(100, 1, 1);
    QCOMPARE(RaisedBy([&] { DateAdd("d", 1, last); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("m", 1, last); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("d", -1, first); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("m", -1, first); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("d", 2147483647, first); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("m", -2147483647, first); }), 6);
    QCOMPARE(RaisedBy([&] { DateAdd("x", 1, first); }), 5);
}

void DateTest::DayOfTheYear_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<int>("slot");
    QTest::newRow("1 January") << QByteArray("01/01/2007") << 1;
    QTest::newRow("1 March, common") << QByteArray("01/03/2007") << 60;
    QTest::newRow("31 December, common") << QByteArray("31/12/2007") << 365;
    QTest::newRow("29 February") << QByteArray("29/02/2008") << 60;
    QTest::newRow("1 March, leap") << QByteArray("01/03/2008") << 61;
    QTest::newRow("31 December, leap") << QByteArray("31/12/2008") << 366;
    QTest::newRow("century without a leap day") << QByteArray("31/12/2100") << 365;
    QTest::newRow("century with one") << QByteArray("31/12/2000") << 366;
}

void DateTest::DayOfTheYear()
{
    QFETCH(QByteArray, date);
    QFETCH(int, slot);
    const CalendarDate day = DateValue(TextOf(date));
    QCOMPARE(int{day.DayOfYear().value()}, slot);
    QCOMPARE(Bytes(Format(day, "y")), QByteArray::number(slot));
}

void DateTest::LongFormIsItalian_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* date, TextView text) { QTest::newRow(date) << QByteArray(date) << Bytes(text); };
    // The week of 5 to 11 March 2007 began with a Monday.
    row("05/03/2007", "   luned\xEC  5  marzo  2007");
    row("06/03/2007", "   marted\xEC  6  marzo  2007");
    row("07/03/2007", "   mercoled\xEC  7  marzo  2007");
    row("08/03/2007", "   gioved\xEC  8  marzo  2007");
    row("09/03/2007", "   venerd\xEC  9  marzo  2007");
    row("10/03/2007", "   sabato  10  marzo  2007");
    row("11/03/2007", "   domenica  11  marzo  2007");
    // A year's firsts; 1 January 2008 was a Tuesday.
    row("01/01/2008", "   marted\xEC  1  gennaio  2008");
    row("01/02/2008", "   venerd\xEC  1  febbraio  2008");
    row("01/03/2008", "   sabato  1  marzo  2008");
    row("01/04/2008", "   marted\xEC  1  aprile  2008");
    row("01/05/2008", "   gioved\xEC  1  maggio  2008");
    row("01/06/2008", "   domenica  1  giugno  2008");
    row("01/07/2008", "   marted\xEC  1  luglio  2008");
    row("01/08/2008", "   venerd\xEC  1  agosto  2008");
    row("01/09/2008", "   luned\xEC  1  settembre  2008");
    row("01/10/2008", "   mercoled\xEC  1  ottobre  2008");
    row("01/11/2008", "   sabato  1  novembre  2008");
    row("01/12/2008", "   luned\xEC  1  dicembre  2008");
    row("29/02/2008", "   venerd\xEC  29  febbraio  2008");
    row("01/01/2001", "   luned\xEC  1  gennaio  2001");
    row("31/12/2099", "   gioved\xEC  31  dicembre  2099");
}

void DateTest::LongFormIsItalian()
{
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(Format(DateValue(TextOf(date)), "   dddd  d  mmmm  yyyy")), text);
}

void DateTest::EveryDayOfFourCenturiesFollowsTheOneBefore()
{
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    CalendarDate date(1900, 1, 1);
    unsigned weekday = 1; // A Monday.
    for (int year = 1900; year < 2300; ++year) {
        const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        int slot = 1;
        for (int month = 1; month <= 12; ++month) {
            const int length = lengths[month - 1] + (leap && month == 2 ? 1 : 0);
            for (int day = 1; day <= length; ++day, ++slot) {
                QVERIFY(date.Day() == day && date.Month() == month && date.Year() == year);
                QVERIFY(date.DayOfYear() == slot && date.Weekday() == weekday);
                date = DateAdd("d", 1, date);
                weekday = (weekday + 1) % 7;
            }
        }
    }
    QCOMPARE(Short(date), QByteArray("01/01/2300"));
}

void DateTest::OrderAndFirstValue()
{
    QVERIFY(DateValue("28/02/2008") < DateValue("29/02/2008"));
    QVERIFY(DateValue("31/12/2007") < DateValue("01/01/2008"));
    QVERIFY(DateValue("02/01/2007") > DateValue("01/02/2006"));
    QVERIFY(DateValue("1/3/2008") == DateValue("01/03/2008"));
    QCOMPARE(Short(CalendarDate()), QByteArray("30/12/1899"));
}

void DateTest::ConstructorRefusesWhatIsNoDay()
{
    QCOMPARE(RaisedBy([] { CalendarDate(99, 12, 31); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(10000, 1, 1); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 2, 29); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 0, 1); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 13, 1); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 257, 1); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 1, 0); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(2007, 1, 257); }), 13);
    QCOMPARE(RaisedBy([] { CalendarDate(100, 1, 1); }), 0);
    QCOMPARE(RaisedBy([] { CalendarDate(9999, 12, 31); }), 0);
}

void DateTest::SystemDateComesFromTheClock()
{
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        char text[16];
        std::strftime(text, sizeof text, "%d/%m/%Y", std::localtime(&now));
        return QByteArray(text);
    };
    const QByteArray before = today();
    const QByteArray date = Short(Date());
    QVERIFY(date == before || date == today());
    {
        const FixedClock clock(CalendarDate(2008, 2, 29));
        QCOMPARE(Short(Date()), QByteArray("29/02/2008"));
    }
    QVERIFY(Short(Date()) == before || Short(Date()) == today());
}

ZELVIA_TEST(DateTest)
#include "DateTest.moc"
