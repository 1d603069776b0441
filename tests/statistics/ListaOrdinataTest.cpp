// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ListaOrdinata.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"

#include <QByteArrayList>
#include <QString>
#include <QTest>

#include <cstddef>
#include <random>
#include <vector>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::MessageScript;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

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
    void LinesOfTheBox_data();
    void LinesOfTheBox();
    void PlacesAreRightAligned();
    void AverageOfAnotherLengthRepeatsTheLast();
    void EachWritingStartsWithoutAnAverage();
    void RowsOfTheView();
    void WritingEndsAtADayWithoutNumber();
    void SelectionOfTheLastDay_data();
    void SelectionOfTheLastDay();
    void OfTwoRowsOfADayTheLastIsSelected();
    void FailuresOfTheControlsAreReported();
    void RandomLists();
};

namespace
{

constexpr int kPlaces = 366;
constexpr int kNothingSelected = -1;
constexpr int kUntouched = -2;

/// Keeps what a list writes and selects.
class Box : public CasellaTempi
{
public:
    void AggiungiRiga(TextView riga) override { lines << Bytes(riga); }
    void Seleziona(int indice) override { selected = indice; }

    QByteArrayList lines;
    int selected = kUntouched;
};

/// Keeps the rows that a list writes, their columns joined by a stroke.
class View : public VistaTempi
{
public:
    void AggiungiRiga(TextView posizione, TextView tempo, TextView media, TextView data) override
    {
        rows << Bytes(posizione) + '|' + Bytes(tempo) + '|' + Bytes(media) + '|' + Bytes(data);
    }

    QByteArrayList rows;
};

/// Controls that are out of memory.
class FailingBox : public CasellaTempi
{
public:
    void AggiungiRiga(TextView) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
    void Seleziona(int) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
};

class FailingView : public VistaTempi
{
public:
    void AggiungiRiga(TextView, TextView, TextView, TextView) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
};

/// Day 1 is 1 January 2008, a leap year.
CalendarDate DateOf(int day)
{
    return CalendarDate(2008, 1, 1).PlusDays(day - 1);
}

void Add(ListaOrdinata& list, int day, const QByteArray& time, const QByteArray& average = "5:00")
{
    list.LOgiorno(day);
    list.LOtempo(TextOf(time));
    list.LOmedia(TextOf(average));
    list.LOdata(DateOf(day));
    list.Trasforma();
    list.Incrementa();
}

QByteArrayList BoxLines(ListaOrdinata& list)
{
    Box box;
    list.NuovaListalst(&box);
    list.RiempiListalst();
    list.NuovaListalst(nullptr);
    return box.lines;
}

QByteArrayList ViewRows(ListaOrdinata& list)
{
    View view;
    list.NuovaLista(&view);
    list.RiempiLista();
    list.NuovaLista(nullptr);
    return view.rows;
}

/// The row that the list selects in its box.
int Selected(ListaOrdinata& list)
{
    Box box;
    list.NuovaListalst(&box);
    list.Posizione();
    list.NuovaListalst(nullptr);
    return box.selected;
}

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

void ListaOrdinataTest::LinesOfTheBox_data()
{
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("average");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char* name, const char* time, const char* average, const char* line) {
        QTest::newRow(name) << QByteArray(time) << QByteArray(average) << QByteArray(line);
    };
    row("average of four", "0:50:00", "5:00", "   1\xB0   0:50:00   5:00   01/03/2008");
    row("average of five", "1:05:30", "10:05", "   1\xB0   1:05:30  10:05   01/03/2008");
    row("no average", "1:05:30", "", "   1\xB0   1:05:30   01/03/2008");
    row("average of three", "1:05:30", "0:5", "   1\xB0   1:05:30   01/03/2008");
    row("average of six", "1:05:30", "100:05", "   1\xB0   1:05:30   01/03/2008");
    row("hours of two digits", "12:05:09", "5:00", "   1\xB0   12:05:09   5:00   01/03/2008");
    row("negative hours", "-1:59:55", "5:00", "   1\xB0   -1:59:55   5:00   01/03/2008");
}

void ListaOrdinataTest::LinesOfTheBox()
{
    QFETCH(QByteArray, time);
    QFETCH(QByteArray, average);
    QFETCH(QByteArray, line);
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 61, time, average); // 31 + 29 days before 1 March.
    list.Ordina();
    QCOMPARE(BoxLines(list), QByteArrayList{line});
}

void ListaOrdinataTest::PlacesAreRightAligned()
{
    ListaOrdinata list;
    list.CreaLista();
    for (int day = 1; day <= kPlaces; ++day) {
        Add(list, day, "1:00:00");
    }
    const QByteArrayList lines = BoxLines(list);
    const QByteArrayList rows = ViewRows(list);
    QCOMPARE(lines.size(), kPlaces);
    QCOMPARE(rows.size(), kPlaces);
    QCOMPARE(lines[0], QByteArray("   1\xB0   1:00:00   5:00   01/01/2008"));
    QCOMPARE(lines[8], QByteArray("   9\xB0   1:00:00   5:00   09/01/2008"));
    QCOMPARE(lines[9], QByteArray("  10\xB0   1:00:00   5:00   10/01/2008"));
    QCOMPARE(lines[98], QByteArray("  99\xB0   1:00:00   5:00   08/04/2008"));
    QCOMPARE(lines[99], QByteArray(" 100\xB0   1:00:00   5:00   09/04/2008"));
    QCOMPARE(lines[365], QByteArray(" 366\xB0   1:00:00   5:00   31/12/2008"));
    // The view has a column for it and pads nothing.
    QCOMPARE(rows[8], QByteArray("  9\xB0|1:00:00|5:00|09/01/2008"));
    QCOMPARE(rows[9], QByteArray("  10\xB0|1:00:00|5:00|10/01/2008"));
    QCOMPARE(rows[99], QByteArray("  100\xB0|1:00:00|5:00|09/04/2008"));
    QCOMPARE(rows[365], QByteArray("  366\xB0|1:00:00|5:00|31/12/2008"));
}

void ListaOrdinataTest::AverageOfAnotherLengthRepeatsTheLast()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:10:00", "");
    Add(list, 2, "0:20:00", "4:35");
    Add(list, 3, "0:30:00", "");
    Add(list, 4, "0:40:00", "100:05");
    Add(list, 5, "0:50:00", "12:15");
    Add(list, 6, "0:55:00", "4.5");
    list.Ordina();
    QCOMPARE(BoxLines(list), (QByteArrayList{
                                 "   1\xB0   0:10:00   01/01/2008",
                                 "   2\xB0   0:20:00   4:35   02/01/2008",
                                 "   3\xB0   0:30:00   4:35   03/01/2008",
                                 "   4\xB0   0:40:00   4:35   04/01/2008",
                                 "   5\xB0   0:50:00  12:15   05/01/2008",
                                 "   6\xB0   0:55:00  12:15   06/01/2008",
                             }));
    // The view shows each average as it is.
    QCOMPARE(ViewRows(list), (QByteArrayList{
                                 "  1\xB0|0:10:00||01/01/2008",
                                 "  2\xB0|0:20:00|4:35|02/01/2008",
                                 "  3\xB0|0:30:00||03/01/2008",
                                 "  4\xB0|0:40:00|100:05|04/01/2008",
                                 "  5\xB0|0:50:00|12:15|05/01/2008",
                                 "  6\xB0|0:55:00|4.5|06/01/2008",
                             }));
}

void ListaOrdinataTest::EachWritingStartsWithoutAnAverage()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:10:00", "");
    Add(list, 2, "0:20:00", "4:35");
    const QByteArrayList once = BoxLines(list);
    QCOMPARE(once.first(), QByteArray("   1\xB0   0:10:00   01/01/2008"));
    QCOMPARE(BoxLines(list), once);
}

void ListaOrdinataTest::RowsOfTheView()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 61, "1:05:30", "10:05");
    Add(list, 366, "0:09:07", "4:35");
    Add(list, 60, "12:00:00", "");
    list.Ordina();
    QCOMPARE(ViewRows(list), (QByteArrayList{
                                 "  1\xB0|0:09:07|4:35|31/12/2008",
                                 "  2\xB0|1:05:30|10:05|01/03/2008",
                                 "  3\xB0|12:00:00||29/02/2008",
                             }));
}

void ListaOrdinataTest::WritingEndsAtADayWithoutNumber()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:10:00");
    Add(list, 0, "0:20:00");
    Add(list, 3, "0:30:00");
    list.Ordina();
    QCOMPARE(ViewRows(list), QByteArrayList{"  1\xB0|0:10:00|5:00|01/01/2008"});
    QCOMPARE(BoxLines(list), QByteArrayList{"   1\xB0   0:10:00   5:00   01/01/2008"});
}

void ListaOrdinataTest::SelectionOfTheLastDay_data()
{
    QTest::addColumn<QByteArrayList>("times"); // Of the days 1, 2, ...; the last is the day on show.
    QTest::addColumn<int>("row");
    QTest::newRow("the only one") << QByteArrayList{"0:50:00"} << 0;
    QTest::newRow("the fastest") << QByteArrayList{"0:52:00", "0:51:00", "0:50:00"} << 0;
    QTest::newRow("in the middle") << QByteArrayList{"0:52:00", "0:50:00", "0:51:00"} << 1;
    QTest::newRow("the slowest") << QByteArrayList{"0:50:00", "0:51:00", "0:52:00"} << 2;
    QTest::newRow("first among equals") << QByteArrayList{"0:50:00", "0:51:00", "0:51:00"} << 1;
    QTest::newRow("with a time of nothing") << QByteArrayList{"0:50:00", "0:51:00", "0:00:00"} << kNothingSelected;
    QTest::newRow("with 100 hours") << QByteArrayList{"0:50:00", "100:00:00"} << kNothingSelected;
}

void ListaOrdinataTest::SelectionOfTheLastDay()
{
    QFETCH(QByteArrayList, times);
    QFETCH(int, row);
    ListaOrdinata list;
    list.CreaLista();
    for (int i = 0; i < times.size(); ++i) {
        Add(list, i + 1, times[i]);
    }
    list.Ordina();
    QCOMPARE(Selected(list), row);
    // Another day can be asked for as well.
    list.LOgiorno(1);
    QVERIFY(Selected(list) >= 0);
    list.LOgiorno(300);
    QCOMPARE(Selected(list), kNothingSelected);
}

void ListaOrdinataTest::OfTwoRowsOfADayTheLastIsSelected()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 7, "0:52:00");
    Add(list, 8, "0:51:00");
    Add(list, 7, "0:50:00");
    list.Ordina();
    QCOMPARE(Selected(list), 2);
}

void ListaOrdinataTest::FailuresOfTheControlsAreReported()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:50:00");
    FailingBox box;
    FailingView view;
    list.NuovaListalst(&box);
    list.NuovaLista(&view);
    MessageScript boxes;
    boxes.ExpectError("RiempiLista - ERRORE : ", 7);
    list.RiempiLista();
    boxes.ExpectError("RiempiListalst - ERRORE : ", 7);
    list.RiempiListalst();
    boxes.ExpectError("Posizione - ERRORE : ", 7);
    list.Posizione();
    QVERIFY(boxes.AllShown());
}

namespace
{

struct Run {
    int day;
    int hours;
    int minutes;
    int seconds;
    QByteArray average;
};

int SecondsOf(const Run& run)
{
    return (run.hours * 60 + run.minutes) * 60 + run.seconds;
}

/// The runs that a list shows, put one by one before the first that is as slow or slower.
std::vector<Run> Classified(const std::vector<Run>& runs)
{
    std::vector<Run> sorted;
    for (const Run& run : runs) {
        if (SecondsOf(run) == 0 || run.hours > 99) {
            continue;
        }
        auto place = sorted.begin();
        while (place != sorted.end() && SecondsOf(*place) < SecondsOf(run)) {
            ++place;
        }
        sorted.insert(place, run);
    }
    return sorted;
}

QByteArray TimeOf(const Run& run)
{
    return QString::asprintf("%d:%02d:%02d", run.hours, run.minutes, run.seconds).toLatin1();
}

QByteArray PlainDate(int day)
{
    const CalendarDate date = DateOf(day);
    return QString::asprintf("%02d/%02d/%04d", int{date.Day().value()}, int{date.Month().value()},
                             int{date.Year().value()})
        .toLatin1();
}

QByteArrayList ExpectedRows(const std::vector<Run>& sorted)
{
    QByteArrayList rows;
    for (const Run& run : sorted) {
        rows << "  " + QByteArray::number(rows.size() + 1) + "\xB0|" + TimeOf(run) + '|' + run.average + '|' +
                    PlainDate(run.day);
    }
    return rows;
}

QByteArrayList ExpectedLines(const std::vector<Run>& sorted)
{
    QByteArrayList lines;
    QByteArray average;
    for (const Run& run : sorted) {
        if (run.average.size() == 4 || run.average.size() == 5) {
            average = run.average.rightJustified(7);
        }
        lines << (QByteArray::number(lines.size() + 1) + '\xB0').rightJustified(5) + "   " + TimeOf(run) + average +
                     "   " + PlainDate(run.day);
    }
    return lines;
}

int ExpectedSelection(const std::vector<Run>& sorted, int day)
{
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (sorted[i].day == day) {
            return static_cast<int>(i);
        }
    }
    return kNothingSelected;
}

} // namespace

/// Lists of every size, with few different times so that many are equal, against a classification made here.
void ListaOrdinataTest::RandomLists()
{
    const QByteArrayList averages = {"4:35", "5:00", "10:05", "59:59", "", "0:0", "100:05"};
    std::mt19937 random(366);
    const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    MessageScript boxes;
    for (int round = 0; round < 120; ++round) {
        ListaOrdinata list;
        list.CreaLista();
        std::vector<Run> runs;
        Run last{};
        const int spread = 1 + below(60);
        const int size = round == 0 ? kPlaces : below(round % 4 == 0 ? kPlaces + 1 : 40);
        for (int day = kPlaces - size + 1; day <= kPlaces; ++day) {
            Run run{day, below(3), below(spread), below(spread), averages[below(static_cast<int>(averages.size()))]};
            if (below(20) == 0) {
                run.hours = 98 + below(4);
            }
            QByteArray text = TimeOf(run);
            if (below(10) == 0) {
                // No time: hours and minutes are those of the run before.
                text.clear();
                run.hours = last.hours;
                run.minutes = last.minutes;
                run.seconds = 0;
            }
            Add(list, day, text, run.average);
            runs.push_back(run);
            last = run;
        }
        const std::vector<Run> sorted = Classified(runs);
        list.Ordina();
        QCOMPARE(ViewRows(list), ExpectedRows(sorted));
        QCOMPARE(BoxLines(list), ExpectedLines(sorted));
        const int day = 1 + below(kPlaces);
        list.LOgiorno(day);
        QCOMPARE(Selected(list), ExpectedSelection(sorted, day));
    }
    QCOMPARE(boxes.Shown(), 0);
}

QTEST_APPLESS_MAIN(ListaOrdinataTest)
#include "ListaOrdinataTest.moc"
