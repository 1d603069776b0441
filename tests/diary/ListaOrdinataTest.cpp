// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ListaOrdinata.h"

#include "diary/RunList.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QString>
#include <QTest>

#include <cstddef>
#include <vector>

using namespace zelvia;
using zelvia::test::Add;
using zelvia::test::BoxLines;
using zelvia::test::Bytes;
using zelvia::test::DateOf;
using zelvia::test::kNothingSelected;
using zelvia::test::kPlaces;
using zelvia::test::MessageScript;
using zelvia::test::RaisedBy;
using zelvia::test::Selected;
using zelvia::test::ViewRows;

class ListaOrdinataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyListStaysEmpty();
    void TimesTakenApart_data();
    void TimesTakenApart();
    void AFirstTimeWithoutItsColonsIsDropped_data();
    void AFirstTimeWithoutItsColonsIsDropped();
    void AnEmptyTimeInheritsFromEachRunBefore();
    void UnreadableTimesAreReported_data();
    void UnreadableTimesAreReported();
    void Order_data();
    void Order();
    void ASumOutOfRangeLeavesTheListUnsorted();
    void AListIsWholeWithAllPlacesTaken();
    void OneEntryTooMany();
    void DroppedEntriesKeepTheirCount();
    void CreatedAnewItIsEmpty();
};

namespace
{

QByteArray Column(const QByteArray& row, int column)
{
    return row.split('|')[column];
}

/// The times of the list, in its order.
QByteArrayList Times(ListaOrdinata& list)
{
    QByteArrayList times;
    for (const QByteArray& row : ViewRows(list)) {
        times << Column(row, 1);
    }
    return times;
}

/// The days of the list as day/month, in its order.
QByteArrayList Days(ListaOrdinata& list)
{
    QByteArrayList days;
    for (const QByteArray& row : ViewRows(list)) {
        days << Column(row, 3).left(5);
    }
    return days;
}

} // namespace

void ListaOrdinataTest::AnEmptyListStaysEmpty()
{
    MessageScript boxes;
    ListaOrdinata list;
    list.CreaLista();
    list.Ordina();
    QCOMPARE(BoxLines(list), QByteArrayList());
    QCOMPARE(ViewRows(list), QByteArrayList());
    list.LOgiorno(1);
    QCOMPARE(Selected(list), kNothingSelected);
    QCOMPARE(boxes.Shown(), 0);
}

/// Each time after a run of 2:41:07, whose hours and minutes are inherited where a colon is missing.
void ListaOrdinataTest::TimesTakenApart_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("time");
    const auto row = [](const char* name, const char* text, const char* time) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(time);
    };
    row("one digit of hours", "1:05:30", "1:05:30");
    row("no hours", "0:05:30", "0:05:30");
    row("two digits of hours", "12:05:30", "12:05:30");
    row("three digits of hours", "100:05:30", "100:05:30");
    row("four digits of hours", "1000:05:30", "1000:05:30");
    row("negative hours", "-1:59:55", "-1:59:55");
    row("single digits", "1:5:9", "1:05:09");
    row("no digits of hours", ":05:30", "0:05:30");
    row("no digits of minutes", "1::30", "1:00:30");
    row("no digits of seconds", "1:05:", "1:05:00");
    row("all that follows are the seconds", "1:05:300", "1:05:300");
    row("seconds end at a third colon", "1:05:30:9", "1:05:30");
    row("blanks are skipped", " 1: 5: 3 0", "1:05:30");
    row("a fraction of a second is rounded", "1:05:30.5", "1:05:30");
    row("and up where it is odd", "1:05:31.5", "1:05:32");
    row("letters are nothing", "a:b:c", "0:00:00");
    row("the second colon in place 8", "1:00004:5", "1:04:05");

    row("empty", "", "2:41:00");
    row("a blank", " ", "2:41:00");
    row("no colon", "130", "2:41:00");
    row("no colon, text from place 9 on", "12345678901", "2:41:901");
    row("a colon too late in place 9", "12345678:9", "2:41:00");

    // One colon at p: the seconds follow the 8 - p places tried.
    row("one colon in place 1", ":2345678", "0:41:08");                // from 8 on
    row("one colon in place 2, short", "5:30", "5:41:00");             // from 7 on
    row("one colon in place 2", "5:345678", "5:41:78");                // from 7 on
    row("one colon in place 3, short", "45:30", "45:41:00");           // from 6 on
    row("one colon in place 3", "45:45678", "45:41:678");              // from 6 on
    row("one colon in place 4", "045:5678", "45:41:5678");             // from 5 on
    row("one colon in place 5", "0045:678", "45:41:05");               // from 4 on
    row("one colon in place 6", "    7:30", "7:41:07");                // from 3 on
    row("one colon in place 7", "000012:8", "12:41:01");               // from 2 on, four places
    row("one colon in place 8", "001   2:", "12:41:01");               // from 1 on, three places
    row("the second colon in place 9", "12345:05:30", "12345:41:345"); // from 3 on, five places
}

void ListaOrdinataTest::TimesTakenApart()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, time);
    MessageScript boxes;
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "2:41:07");
    Add(list, 2, text);
    // Unsorted, so that nothing is dropped.
    QCOMPARE(Times(list), (QByteArrayList{"2:41:07", time}));
    QCOMPARE(boxes.Shown(), 0);
}

void ListaOrdinataTest::AFirstTimeWithoutItsColonsIsDropped_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("a blank") << QByteArray(" ");
    QTest::newRow("no colon") << QByteArray("130");
}

void ListaOrdinataTest::AFirstTimeWithoutItsColonsIsDropped()
{
    QFETCH(QByteArray, text);
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, text);
    Add(list, 2, text);
    QCOMPARE(Times(list), (QByteArrayList{"0:00:00", "0:00:00"}));
    list.Ordina();
    QCOMPARE(Times(list), QByteArrayList());
    QCOMPARE(Selected(list), kNothingSelected);
}

void ListaOrdinataTest::AnEmptyTimeInheritsFromEachRunBefore()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "");
    Add(list, 2, "1:05:30");
    Add(list, 3, "");
    Add(list, 4, "");
    Add(list, 5, "0:00:45");
    Add(list, 6, "");
    Add(list, 7, "0:50:00");
    Add(list, 8, "");
    list.Ordina();
    QCOMPARE(Times(list), (QByteArrayList{"0:00:45", "0:50:00", "0:50:00", "1:05:00", "1:05:00", "1:05:30"}));
    QCOMPARE(Days(list), (QByteArrayList{"05/01", "08/01", "07/01", "04/01", "03/01", "02/01"}));
}

/// What was read before the failure is kept, the rest stays that of the run before, 2:41:07.
void ListaOrdinataTest::UnreadableTimesAreReported_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("time");
    QTest::newRow("hours beyond a short") << QByteArray("32768:1:2") << QByteArray("2:41:07");
    QTest::newRow("minutes beyond a short") << QByteArray("5:32768:2") << QByteArray("5:41:07");
    QTest::newRow("seconds beyond a short") << QByteArray("5:06:32768") << QByteArray("5:06:07");
}

void ListaOrdinataTest::UnreadableTimesAreReported()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, time);
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "2:41:07");
    MessageScript boxes;
    boxes.ExpectError("Trasforma - ERRORE : ", 6);
    Add(list, 2, text);
    QVERIFY(boxes.AllShown());
    QCOMPARE(Times(list), (QByteArrayList{"2:41:07", time}));
}

void ListaOrdinataTest::Order_data()
{
    QTest::addColumn<QByteArrayList>("times"); // Of the days 1, 2, ...
    QTest::addColumn<QByteArrayList>("days");
    const auto row = [](const char* name, const QByteArrayList& times, const QByteArrayList& days) {
        QTest::newRow(name) << times << days;
    };
    row("one run", {"0:50:00"}, {"01/01"});
    row("in order already", {"0:50:00", "0:51:00"}, {"01/01", "02/01"});
    row("in reverse", {"0:51:00", "0:50:00"}, {"02/01", "01/01"});
    row("by hours before minutes", {"2:01:00", "1:59:59"}, {"02/01", "01/01"});
    row("by minutes before seconds", {"1:02:00", "1:01:59"}, {"02/01", "01/01"});
    row("by seconds", {"1:01:30", "1:01:29"}, {"02/01", "01/01"});
    row("hours as numbers", {"10:00:00", "9:00:00"}, {"02/01", "01/01"});
    row("equal times, the later first", {"1:00:00", "1:00:00"}, {"02/01", "01/01"});
    row("three equal among others", {"1:00:00", "0:59:59", "1:00:00", "1:00:01", "1:00:00"},
        {"02/01", "05/01", "03/01", "01/01", "04/01"});
    row("times of nothing vanish", {"0:00:00", "1:00:00", "0:00:00", "0:30:00"}, {"04/01", "02/01"});
    row("nothing but times of nothing", {"0:00:00", "0:00:00"}, {});
    row("a second is a time", {"0:00:01", "0:00:00"}, {"01/01"});
    row("a minute is a time", {"0:01:00", "0:00:00"}, {"01/01"});
    row("99 hours and all", {"99:59:59", "99:00:00", "98:59:59"}, {"03/01", "02/01", "01/01"});
    row("99 hours, 60 minutes, 60 seconds are the most", {"99:60:60", "99:60:59"}, {"02/01", "01/01"});
    row("60 minutes and a second too many", {"99:60:61", "99:60:60"}, {"02/01"});
    row("61 minutes of 99 hours", {"99:61:00", "98:61:00"}, {"02/01"});
    row("100 hours", {"100:00:00", "1:00:00"}, {"02/01"});
    row("nothing but 100 hours", {"100:00:00"}, {});
    row("negative hours with minutes left come first", {"0:00:01", "-1:59:55"}, {"02/01", "01/01"});
    row("negative hours alone vanish", {"-1:00:00", "1:00:00"}, {"02/01"});
    row("a sum of nothing vanishes", {"-30:15:15", "-30:15:16"}, {"02/01"});
}

void ListaOrdinataTest::Order()
{
    QFETCH(QByteArrayList, times);
    QFETCH(QByteArrayList, days);
    MessageScript boxes;
    ListaOrdinata list;
    list.CreaLista();
    for (int day = 1; day <= times.size(); ++day) {
        Add(list, day, times[day - 1]);
    }
    list.Ordina();
    QCOMPARE(Days(list), days);
    QCOMPARE(boxes.Shown(), 0);
}

void ListaOrdinataTest::ASumOutOfRangeLeavesTheListUnsorted()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "1:32767:0");
    Add(list, 2, "0:50:00");
    MessageScript boxes;
    boxes.ExpectError("Ordina - ERRORE : ", 6);
    list.Ordina();
    QVERIFY(boxes.AllShown());
    QCOMPARE(Times(list), (QByteArrayList{"1:32767:00", "0:50:00"}));
}

void ListaOrdinataTest::AListIsWholeWithAllPlacesTaken()
{
    MessageScript boxes;
    ListaOrdinata list;
    list.CreaLista();
    QByteArrayList expected;
    std::vector<int> dayOf(kPlaces + 1);
    for (int day = 1; day <= kPlaces; ++day) {
        // 131 and 366 have no common divisor, so that each of 1..366 minutes comes up once.
        const int minutes = day * 131 % kPlaces + 1;
        dayOf[static_cast<std::size_t>(minutes)] = day;
        Add(list, day, QString::asprintf("%d:%02d:00", minutes / 60, minutes % 60).toLatin1());
    }
    for (int minutes = 1; minutes <= kPlaces; ++minutes) {
        const int day = dayOf[static_cast<std::size_t>(minutes)];
        expected << "  " + QByteArray::number(minutes) + "\xB0|" + QByteArray::number(minutes / 60) + ":" +
                        QByteArray::number(minutes % 60).rightJustified(2, '0') + ":00|5:00|" +
                        Bytes(PlainText(DateOf(day)));
    }
    list.Ordina();
    QCOMPARE(ViewRows(list), expected);
    QCOMPARE(BoxLines(list).size(), kPlaces);
    // The day added last, 366, took 366 * 131 % 366 + 1 = 1 minute.
    QCOMPARE(Selected(list), 0);
    QCOMPARE(boxes.Shown(), 0);
}

void ListaOrdinataTest::OneEntryTooMany()
{
    MessageScript boxes;
    ListaOrdinata list;
    list.CreaLista();
    for (int day = 1; day <= kPlaces; ++day) {
        Add(list, day, "1:00:00");
    }
    QCOMPARE(RaisedBy([&] { list.Incrementa(); }), 9);
    // The 366 before it are as they were.
    QCOMPARE(Times(list), QByteArrayList(kPlaces, "1:00:00"));
    QCOMPARE(boxes.Shown(), 0);
}

/// Sorting leaves the number of entries as it is, so the next one goes behind the places of those dropped.
void ListaOrdinataTest::DroppedEntriesKeepTheirCount()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:00:00");
    Add(list, 2, "1:00:00");
    list.Ordina();
    Add(list, 3, "2:00:00");
    // Place 2 is free and ends the writing.
    QCOMPARE(Days(list), QByteArrayList{"02/01"});
    list.Ordina();
    QCOMPARE(Days(list), (QByteArrayList{"02/01", "03/01"}));

    ListaOrdinata full;
    full.CreaLista();
    for (int day = 1; day <= kPlaces; ++day) {
        Add(full, day, "0:00:00");
    }
    full.Ordina();
    QCOMPARE(RaisedBy([&] { full.Incrementa(); }), 9);
}

void ListaOrdinataTest::CreatedAnewItIsEmpty()
{
    ListaOrdinata list;
    list.CreaLista();
    for (int day = 1; day <= kPlaces; ++day) {
        Add(list, day, "1:00:00");
    }
    list.CreaLista();
    QCOMPARE(ViewRows(list), QByteArrayList());
    Add(list, 9, "0:30:00");
    list.Ordina();
    QCOMPARE(ViewRows(list), QByteArrayList{"  1\xB0|0:30:00|5:00|09/01/2008"});
}

ZELVIA_TEST(ListaOrdinataTest)
#include "ListaOrdinataTest.moc"
