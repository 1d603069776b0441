// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/StatisticSheets.h"

#include "support/SheetLines.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>

using namespace zelvia;
using zelvia::test::SheetLines;
using zelvia::test::SheetRow;

namespace
{

const CalendarDate kDay(2026, 5, 20);

SearchSheetTexts ASearch(int runs)
{
    SearchSheetTexts ricerca;
    ricerca.date = kDay;
    ricerca.start = {"1", "2", "2026"};
    ricerca.end = {"30", "4", "2026"};
    ricerca.criteria = {"via",    "corto", " 8,0",  "lento", "strada", "gara",
                        "estate", "sole",  "caldo", "3",     "68",     " 8 x 400  @ 1:30"};
    ricerca.lines.assign(static_cast<std::size_t>(runs), "  8,0     0:40:00     5:00      01/03/2026 ");
    ricerca.totals = {" 3", " 24", " 2:00:00", " 5:00"};
    return ricerca;
}

/// The operations of each page.
QList<QByteArrayList> Pages(const Sheet& sheet)
{
    QList<QByteArrayList> pages{{}};
    for (const QByteArray& line : SheetLines(sheet)) {
        if (line == "page") {
            pages.append(QByteArrayList());
        } else {
            pages.last() << line;
        }
    }
    return pages;
}

/// How many runs of the search are on a page.
int RunsOf(const QByteArrayList& page)
{
    return static_cast<int>(
        std::count_if(page.begin(), page.end(), [](const QByteArray& line) { return line.endsWith("|01/03/2026"); }));
}

const QByteArrayList kHeadsOfTheSecondPage = {"2,2 Times New Roman 10|Km", "10,2 Times New Roman 10|Tempi",
                                              "20,2 Times New Roman 10|Media Km", "30,2 Times New Roman 10|gg mm aaaa"};

} // namespace

class StatisticSheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStatisticOfTwoHalves()
    {
        std::vector<StatisticSheetSlot> slots60(60);
        slots60[0] = {"Lungofiume", 12};
        slots60[29] = {" 7,50", 3};
        slots60[30] = {"Pista", 2};
        slots60[59] = {StatisticSheetNumber(68), 1};
        const QByteArrayList expected = {"80,0 Times New Roman 8|20/05/2026",
                                         "box 10,1 87,66",
                                         "35,2 Times New Roman 12|       Statistica Percorso",
                                         "13,5 Times New Roman 10|Lungofiume",
                                         "43,5 Times New Roman 10| 12 ",
                                         "53,5 Times New Roman 10|Pista",
                                         "83,5 Times New Roman 10| 2 ",
                                         "13,63 Times New Roman 10| 7,50",
                                         "43,63 Times New Roman 10| 3 ",
                                         "53,63 Times New Roman 10| 68 ",
                                         "83,63 Times New Roman 10| 1 "};
        const Sheet sheet = StatisticSheet(kDay, "Percorso", slots60);
        QVERIFY(sheet.Paper() == Orientation::Portrait);
        QCOMPARE(SheetLines(sheet), expected);
    }

    void theSlotsKeepTheirLines()
    {
        // The second slot is not filled: its line stays empty.
        const std::vector<StatisticSheetSlot> slots3 = {{"a", 1}, {"", 9}, {"c", 2}};
        const Sheet sheet = StatisticSheet(kDay, "Tipo", slots3);
        QCOMPARE(SheetRow(sheet, 7), QByteArrayList());
        QCOMPARE(SheetRow(sheet, 9), (QByteArrayList{"13|c", "43| 2 "}));
    }

    void anEmptyStatisticKeepsItsFormAlone()
    {
        QCOMPARE(SheetLines(StatisticSheet(kDay, "Peso", {})),
                 (QByteArrayList{"80,0 Times New Roman 8|20/05/2026", "box 10,1 87,66",
                                 "35,2 Times New Roman 12|       Statistica Peso"}));
    }

    void theHeadOfASearch()
    {
        const QByteArrayList expected = {"80,0 Times New Roman 8|20/05/2026",
                                         "box 1,3 85,18",
                                         "32,1 Times New Roman 12|   Ricerche Statistiche ",
                                         "2,4 Times New Roman 10|Periodo       dal ",
                                         "15,4 Times New Roman 10 italic|1",
                                         "18,4 Times New Roman 10 italic|2",
                                         "21,4 Times New Roman 10 italic|2026",
                                         "30,4 Times New Roman 10| al ",
                                         "33,4 Times New Roman 10 italic|30",
                                         "36,4 Times New Roman 10 italic|4",
                                         "39,4 Times New Roman 10 italic|2026",
                                         "2,6 Times New Roman 10|Percorso",
                                         "15,6 Times New Roman 10 italic|via",
                                         "45,6 Times New Roman 10|Stagione",
                                         "60,6 Times New Roman 10 italic|estate",
                                         "2,8 Times New Roman 10|Lunghezza",
                                         "15,8 Times New Roman 10 italic|corto",
                                         "45,8 Times New Roman 10|Meteo",
                                         "60,8 Times New Roman 10 italic|sole",
                                         "2,10 Times New Roman 10|Km",
                                         "15,10 Times New Roman 10 italic| 8,0",
                                         "45,10 Times New Roman 10|Temperatura",
                                         "60,10 Times New Roman 10 italic|caldo",
                                         "2,12 Times New Roman 10|Andatura",
                                         "15,12 Times New Roman 10 italic|lento",
                                         "45,12 Times New Roman 10|Corridori",
                                         "60,12 Times New Roman 10 italic|3",
                                         "2,14 Times New Roman 10|Terreno",
                                         "15,14 Times New Roman 10 italic|strada",
                                         "45,14 Times New Roman 10|Peso",
                                         "60,14 Times New Roman 10 italic|68",
                                         "2,16 Times New Roman 10|Tipo",
                                         "15,16 Times New Roman 10 italic|gara",
                                         "45,16 Times New Roman 10|Ripetizioni",
                                         "60,16 Times New Roman 10 italic| 8 x 400  @ 1:30",
                                         "2,20 Times New Roman 10|Km",
                                         "10,20 Times New Roman 10|Tempi",
                                         "20,20 Times New Roman 10|Media Km",
                                         "30,20 Times New Roman 10|gg mm aaaa",
                                         "line 1,22 85,22",
                                         "10,23 Times New Roman 11|Totali",
                                         "2,25 Times New Roman 11|Corse",
                                         "10,25 Times New Roman 11 italic| 3",
                                         "2,27 Times New Roman 11|Km",
                                         "10,27 Times New Roman 11 italic| 24",
                                         "2,29 Times New Roman 11|Tempi",
                                         "10,29 Times New Roman 11 italic| 2:00:00",
                                         "2,31 Times New Roman 11|Media",
                                         "10,31 Times New Roman 11 italic| 5:00"};
        QCOMPARE(SheetLines(SearchSheet(ASearch(0))), expected);
    }

    void runs_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArrayList>("printed");
        // Columns from 2, 11, 23 or 22, and 33.
        QTest::newRow("an average of one digit") << QByteArray("  7,500   0:40:00     5:07      01/03/2026 ")
                                                 << QByteArrayList{"2|7,500", "10|0:40:00", "22|5:07", "30|01/03/2026"};
        QTest::newRow("an average of two digits")
            << QByteArray(" 12,0     2:10:00    10:50      31/12/2026 ")
            << QByteArrayList{"2|12,0", "10|2:10:00", "21|10:50", "30|31/12/2026"};
        QTest::newRow("an average of nine minutes")
            << QByteArray("  9,0     1:21:00     9:00      05/03/2026 ")
            << QByteArrayList{"2|9,0", "10|1:21:00", "22|9:00", "30|05/03/2026"};
        QTest::newRow("no time and no average")
            << QByteArray("  9,0                           05/03/2026 ") << QByteArrayList{"2|9,0", "30|05/03/2026"};
    }

    void runs()
    {
        QFETCH(QByteArray, line);
        SearchSheetTexts ricerca = ASearch(0);
        ricerca.lines = {line.toStdString()};
        QTEST(SheetRow(SearchSheet(ricerca), 22), "printed");
    }

    void pages_data()
    {
        QTest::addColumn<int>("runs");
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("rowsOfTheLast");
        QTest::addColumn<int>("totals");
        // The first page holds 22 runs, down to line 64; each one after it 31, from line 4. The totals are three
        // lines on where the last run ends above line 50, else on a page of their own.
        QTest::newRow("0") << 0 << 1 << 0 << 23;
        QTest::newRow("1") << 1 << 1 << 1 << 25;
        QTest::newRow("14, the last that leaves room") << 14 << 1 << 14 << 51;
        QTest::newRow("15") << 15 << 2 << 0 << 0;
        QTest::newRow("21") << 21 << 2 << 0 << 0;
        QTest::newRow("22, a full page") << 22 << 2 << 0 << 5;
        QTest::newRow("23") << 23 << 2 << 1 << 7;
        QTest::newRow("53, two full pages") << 53 << 3 << 0 << 5;
        QTest::newRow("200") << 200 << 7 << 23 << 51;
        QTest::newRow("366") << 366 << 13 << 3 << 11;
    }

    void pages()
    {
        QFETCH(int, runs);
        QFETCH(int, rowsOfTheLast);
        QFETCH(int, totals);
        const QList<QByteArrayList> pages = Pages(SearchSheet(ASearch(runs)));
        QTEST(static_cast<int>(pages.size()), "pages");
        int found = 0;
        for (const QByteArrayList& page : pages) {
            found += RunsOf(page);
        }
        QCOMPARE(found, runs);
        const QByteArrayList& last = pages.last();
        QCOMPARE(RunsOf(last), rowsOfTheLast);
        const QByteArray rule = QByteArray::number(totals - 1);
        QVERIFY(last.contains("line 1," + rule + " 85," + rule));
        QVERIFY(last.contains("10," + QByteArray::number(totals) + " Times New Roman 11|Totali"));
        QVERIFY(last.contains("2," + QByteArray::number(totals + 8) + " Times New Roman 11|Media"));
    }

    void aNewPageRepeatsTheHeads()
    {
        const QList<QByteArrayList> pages = Pages(SearchSheet(ASearch(23)));
        QCOMPARE(pages[0].last(), QByteArray("30,64 Times New Roman 10 italic|01/03/2026"));
        QCOMPARE(pages[1].mid(0, 4), kHeadsOfTheSecondPage);
        QCOMPARE(pages[1][4], QByteArray("2,4 Times New Roman 10 italic|8,0"));
        // Totals that need a page of their own have no heads over them.
        QCOMPARE(Pages(SearchSheet(ASearch(15)))[1].first(), QByteArray("line 1,-1 85,-1"));
    }

    void aChartComesFromTheClipboard()
    {
        const Sheet sheet = ChartSheet(kDay, {});
        QVERIFY(sheet.Paper() == Orientation::Landscape);
        QCOMPARE(SheetLines(sheet),
                 (QByteArrayList{"125,0 Times New Roman 8 bold|20/05/2026", "box 2,1 132,47", "picture 15,3"}));
    }
};

ZELVIA_TEST(StatisticSheetsTest)
#include "StatisticSheetsTest.moc"
