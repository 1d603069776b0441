// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarSheet.h"

#include "support/SheetLines.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using zelvia::test::SheetLines;
using zelvia::test::SheetRow;

namespace
{

CalendarSheetTexts Blank()
{
    CalendarSheetTexts page;
    page.date = CalendarDate(2026, 5, 20);
    page.title = "Calendario Gare       di  ";
    return page;
}

} // namespace

Q_DECLARE_METATYPE(CalendarSheetRow)

class CalendarSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormOfABlankPage()
    {
        const QByteArrayList expected = {"124,0 Times New Roman 8|20/05/2026",
                                         "box 1,3 130,30",
                                         "line 12,3 12,30",
                                         "line 44,3 44,30",
                                         "line 65,3 65,30",
                                         "line 74,3 74,30",
                                         "line 87,3 87,30",
                                         "line 98,3 98,30",
                                         "line 109,3 109,30",
                                         "line 121,3 121,30",
                                         "60,1 Times New Roman 12|Calendario Gare       di  ",
                                         "66,4 Times New Roman 10|Distanza ",
                                         "101,4 Times New Roman 10|Tempo",
                                         "5,5 Times New Roman 10|Data",
                                         "26,5 Times New Roman 10| Gara ",
                                         "50,5 Times New Roman 10|Localit\xE0",
                                         "66,5 Times New Roman 10|km metri",
                                         "76,5 Times New Roman 10|Partecipanti",
                                         "89,5 Times New Roman 10|Risultato",
                                         "99,5 Times New Roman 10|  hh   mm  ss",
                                         "112,5 Times New Roman 10|Categoria",
                                         "122,5 Times New Roman 10|Risultato"};
        const Sheet sheet = CalendarSheet(Blank());
        QVERIFY(sheet.Paper() == Orientation::Landscape);
        QCOMPARE(SheetLines(sheet), expected);
    }

    void rows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<CalendarSheetRow>("boxes");
        QTest::addColumn<QByteArrayList>("printed");
        QTest::newRow("two digits each, the last row")
            << 20 << CalendarSheetRow{"12",    "10", "2026", "Mezza", "Como", "21",  "097",
                                      "1.234", "87", "1",    "31",    "07",   "S50", "9"}
            << QByteArrayList{
                   "2|12",  "5|10",  "8|2026", "13|Mezza", "45|Como", "66|21",  "68|,",    "69|097", "78|1.234",
                   "90|87", "100|1", "102|:",  "103|31",   "105|:",   "106|07", "112|S50", "124|9"};
        QTest::newRow("one digit each, the first row")
            << 1 << CalendarSheetRow{"1", "3", "2026", "Corsa", "Lecco", "5", "", "", "", "", "", "", "", ""}
            << QByteArrayList{"3|1", "6|3", "8|2026", "13|Corsa", "45|Lecco", "67|5", "68|,", "69|0"};
        QTest::newRow("a time without hours")
            << 2 << CalendarSheetRow{"", "", "", "", "", "", "", "", "", "", "45", "30", "", ""}
            << QByteArrayList{"103|45", "105|:", "106|30"};
        QTest::newRow("metres without kilometres")
            << 3 << CalendarSheetRow{"", "", "", "", "", "", "500", "", "", "", "", "", "", ""}
            << QByteArrayList{"69|500"};
        QTest::newRow("hours of two digits stay in their column")
            << 4 << CalendarSheetRow{"", "", "", "", "", "", "", "", "", "10", "", "", "", ""}
            << QByteArrayList{"100|10", "102|:"};
    }

    void rows()
    {
        QFETCH(int, row);
        QFETCH(CalendarSheetRow, boxes);
        CalendarSheetTexts page = Blank();
        page.rows[static_cast<std::size_t>(row - 1)] = boxes;
        QTEST(SheetRow(CalendarSheet(page), 6 + row), "printed");
    }
};

ZELVIA_TEST(CalendarSheetTest)
#include "CalendarSheetTest.moc"
