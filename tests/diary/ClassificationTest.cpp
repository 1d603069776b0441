// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RunTimeError.h"
#include "diary/ListaOrdinata.h"
#include "diary/RunList.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QString>
#include <QTest>

#include <cstddef>
#include <random>
#include <vector>

using namespace zelvia;
using zelvia::test::Add;
using zelvia::test::BoxLines;
using zelvia::test::DateOf;
using zelvia::test::kNothingSelected;
using zelvia::test::kPlaces;
using zelvia::test::MessageScript;
using zelvia::test::Selected;
using zelvia::test::ViewRows;

class ClassificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

/// Controls that are out of memory.
class FailingBox : public TimesBox
{
public:
    void AddLine(TextView) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
    void Select(int) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
};

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

void ClassificationTest::LinesOfTheBox_data()
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

void ClassificationTest::LinesOfTheBox()
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

void ClassificationTest::PlacesAreRightAligned()
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

void ClassificationTest::AverageOfAnotherLengthRepeatsTheLast()
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

void ClassificationTest::EachWritingStartsWithoutAnAverage()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:10:00", "");
    Add(list, 2, "0:20:00", "4:35");
    const QByteArrayList once = BoxLines(list);
    QCOMPARE(once.first(), QByteArray("   1\xB0   0:10:00   01/01/2008"));
    QCOMPARE(BoxLines(list), once);
}

void ClassificationTest::RowsOfTheView()
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

void ClassificationTest::WritingEndsAtADayWithoutNumber()
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

void ClassificationTest::SelectionOfTheLastDay_data()
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

void ClassificationTest::SelectionOfTheLastDay()
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

void ClassificationTest::OfTwoRowsOfADayTheLastIsSelected()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 7, "0:52:00");
    Add(list, 8, "0:51:00");
    Add(list, 7, "0:50:00");
    list.Ordina();
    QCOMPARE(Selected(list), 2);
}

void ClassificationTest::FailuresOfTheControlsAreReported()
{
    ListaOrdinata list;
    list.CreaLista();
    Add(list, 1, "0:50:00");
    FailingBox box;
    list.NuovaListalst(&box);
    list.NuovaLista([](TextView, TextView, TextView, TextView) { throw ErroreRunTime(Errore::MemoriaEsaurita); });
    MessageScript boxes;
    boxes.ExpectError("RiempiLista - ERRORE : ", 7);
    list.RiempiLista();
    boxes.ExpectError("RiempiListalst - ERRORE : ", 7);
    list.RiempiListalst();
    boxes.ExpectError("Posizione - ERRORE : ", 7);
    list.Posizione();
    QVERIFY(boxes.AllShown());
}

/// Lists of every size, with few different times so that many are equal, against a classification made here.
void ClassificationTest::RandomLists()
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

ZELVIA_TEST(ClassificationTest)
#include "ClassificationTest.moc"
