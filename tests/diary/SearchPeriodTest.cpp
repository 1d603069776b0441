// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SearchPeriod.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QTest>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::TextOf;

class SearchPeriodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Checks_data();
    void Checks();
};

void SearchPeriodTest::Checks_data()
{
    const QByteArray start30("DATA INIZIO  MAX 30 GIORNI                 ");
    const QByteArray start28("DATA INIZIO  MAX 28 GIORNI                 ");
    const QByteArray startDay("DATA INIZIO  MIN GIORNO 1                 ");
    const QByteArray startMonth("DATA INIZIO  MIN MESE  1               ");
    const QByteArray startYear("DATA INIZIO  ANNO 2007                 ");
    const QByteArray end30("DATA FINE  MAX 30 GIORNI                 ");
    const QByteArray end28("DATA FINE  MAX 28 GIORNI                 ");
    const QByteArray endDay("DATA FINE  MIN GIORNO 1                 ");
    const QByteArray endMonth("DATA FINE  MIN MESE  1                ");
    const QByteArray endYear("DATA FINE  ANNO 2007                 ");
    const QByteArrayList none;

    QTest::addColumn<QByteArray>("boxes"); // day, month and year of the start, the same of the end
    QTest::addColumn<QByteArrayList>("messages");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("refused");
    const auto row = [](const char* name, const char* boxes, const QByteArrayList& messages, const char* after,
                        bool refused) {
        QTest::newRow(name) << QByteArray(boxes) << messages << QByteArray(after) << refused;
    };
    row("no period", "|||||", none, "|||||", false);
    row("zeros are no date", "0|00|0000|0|0|0", none, "0|00|0000|0|0|0", false);
    row("a whole year", "1|1|2026|31|12|2026", none, "1|1|2026|31|12|2026", false);
    row("one day", "5|5|2026|5|5|2026", none, "5|5|2026|5|5|2026", false);
    row("30 days has April", "31|4|2026|31|4|2026", {start30, end30}, "30|4|2026|30|4|2026", false);
    row("30 days has June", "31|6|2026|31|6|2026", {start30, end30}, "30|6|2026|30|6|2026", false);
    row("30 days has September", "31|9|2026|31|9|2026", {start30, end30}, "30|9|2026|30|9|2026", false);
    row("30 days has November", "31|11|2026|31|11|2026", {start30, end30}, "30|11|2026|30|11|2026", false);
    row("30 April passes", "30|4|2026|30|6|2026", none, "30|4|2026|30|6|2026", false);
    row("31 May passes", "31|5|2026|31|7|2026", none, "31|5|2026|31|7|2026", false);
    row("29 February of a leap year", "29|2|2008|29|2|2012", {start28, end28}, "28|2|2008|28|2|2012", false);
    row("28 February passes", "28|2|2026|28|2|2026", none, "28|2|2026|28|2|2026", false);
    row("a start's day alone", "15|||||", {startMonth, startYear}, "15|1|2007|||", true);
    row("a start's month alone", "|3||||", {startDay, startYear}, "1|3|2007|||", true);
    row("a start's year alone", "||2026|||", {startDay, startMonth}, "1|1|2026|||", true);
    row("a start begun by 1", "||1|||", {startDay, startMonth, startYear}, "1|1|2007|||", true);
    row("29 February without a year", "29|2||1|3|2026", {start28, startYear}, "28|2|2007|1|3|2026", false);
    row("a start without an end", "15|3|2026|||", none, "15|3|2026|||", true);
    row("an end alone", "|||10|3|2026", none, "|||10|3|2026", false);
    row("an end's day alone", "|||10||", {endMonth, endYear}, "|||10|1|2007", false);
    row("an end's month alone", "||||4|", {endDay, endYear}, "|||1|4|2007", false);
    row("an end's year alone", "|||||2026", {endDay, endMonth}, "|||1|1|2026", false);
    row("31 April, no year", "|||31|4|", {end30, endYear}, "|||30|4|2007", false);
    row("before 2007", "1|1|2006|1|2|1999", {startYear, endYear}, "1|1|2007|1|2|2007", false);
    row("2007 passes", "1|1|2007|1|2|2007", none, "1|1|2007|1|2|2007", false);
    row("the day before", "15|3|2026|10|3|2026", none, "15|3|2026|10|3|2026", true);
    row("the month before", "1|3|2026|31|2|2026", {end28}, "1|3|2026|28|2|2026", true);
    row("years have no part, refused", "15|3|2008|10|2|2009", none, "15|3|2008|10|2|2009", true);
    row("years have no part, passed", "10|2|2009|15|3|2008", none, "10|2|2009|15|3|2008", false);
    row("put right and then refused", "31|4|2026|30|3|", {start30, endYear}, "30|4|2026|30|3|2007", true);
    row("put right into order", "31|4|2026|30|4|2026", {start30}, "30|4|2026|30|4|2026", false);
}

void SearchPeriodTest::Checks()
{
    QFETCH(QByteArray, boxes);
    QFETCH(QByteArrayList, messages);
    QFETCH(QByteArray, after);
    QFETCH(bool, refused);
    QByteArrayList texts = boxes.split('|');
    PeriodEntries fields;
    QCOMPARE(texts.size(), static_cast<qsizetype>(fields.size()));
    std::transform(texts.begin(), texts.end(), fields.begin(), TextOf);
    const PeriodCheck check = CheckPeriod(fields);
    QByteArrayList told;
    for (const PeriodCorrection& repair : check.corrections) {
        told << Bytes(repair.message->text);
        texts[static_cast<qsizetype>(repair.box)] = Bytes(repair.value);
    }
    QCOMPARE(told, messages);
    QCOMPARE(texts.join('|'), after);
    QCOMPARE(check.reversed, refused);
}

ZELVIA_TEST(SearchPeriodTest)
#include "SearchPeriodTest.moc"
