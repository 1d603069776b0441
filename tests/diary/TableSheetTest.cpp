// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableSheet.h"

#include "support/SheetLines.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::TableGrid;
using zelvia::test::SheetLines;
using zelvia::test::SheetRow;

namespace
{

TableSheetTexts Blank()
{
    TableSheetTexts table;
    table.date = CalendarDate(2026, 5, 20);
    table.title = "Tabella allenamento : Base 10 km    di   ";
    return table;
}

} // namespace

class TableSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormOfABlankTable()
    {
        const Sheet sheet = TableSheet(Blank());
        QVERIFY(sheet.Paper() == Orientation::Portrait);
        QByteArrayList expected = {"80,0 Times New Roman 8|20/05/2026",
                                   "box 1,3 94,38",
                                   "line 5,3 5,38",
                                   "line 13,3 13,38",
                                   "line 22,3 22,38",
                                   "line 32,3 32,38",
                                   "line 56,3 56,38",
                                   "line 77,3 77,38",
                                   "26,1 Times New Roman 12|Tabella allenamento : Base 10 km    di   ",
                                   "6,4 Times New Roman 10|Distanza ",
                                   "15,4 Times New Roman 10|Tempo",
                                   "24,4 Times New Roman 10|Media",
                                   "2,5 Times New Roman 10|gg",
                                   "6,5 Times New Roman 10|Km metri",
                                   "14,5 Times New Roman 10|hh  mm  ss",
                                   "23,5 Times New Roman 10|mm  ss   mls ",
                                   "40,5 Times New Roman 10|Andatura",
                                   "63,5 Times New Roman 10| Terreno ",
                                   "82,5 Times New Roman 10|Ripetizioni"};
        for (int row = 1; row <= 31; ++row) {
            expected << (row < 10 ? "3," : "2,") + QByteArray::number(6 + row) + " Times New Roman 10| " +
                            QByteArray::number(row) + " ";
        }
        expected << "2,40 Times New Roman 10| Data Inizio";
        QCOMPARE(SheetLines(sheet), expected);
    }

    void theStartDateStandsBelowTheFrame()
    {
        TableSheetTexts table = Blank();
        table.start = {"2", "3", "2026"};
        QCOMPARE(SheetRow(TableSheet(table), 40), (QByteArrayList{"2| Data Inizio", "14|2", "17|3", "20|2026"}));
    }

    void rows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QList<QByteArray>>("boxes");
        QTest::addColumn<QByteArrayList>("printed");
        using Row = QList<QByteArray>;

        QTest::newRow("full, two digits each")
            << 31 << Row{"12", "500", "10", "02", "30", "15", "05", "250", "Media", "Strada", "12", "1.500", "15", "05"}
            << QByteArrayList{"2| 31 ", "6|12",  "8|,",      "9|500", "14|10", "16|:",   "17|02",    "19|:",
                              "20|30",  "23|15", "25|:",     "26|05", "28|:",  "29|250", "33|Media", "57|Strada",
                              "78|12",  "80|x",  "81|1.500", "86|@",  "88|15", "90|:",   "91|05"};
        QTest::newRow("full, one digit each")
            << 9 << Row{"8", "050", "1", "02", "30", "5", "05", "000", "a", "b", "9", "400", "1", "40"}
            << QByteArrayList{"3| 9 ", "7|8",  "8|,",    "9|050", "15|1", "16|:",   "17|02", "19|:",
                              "20|30", "24|5", "25|:",   "26|05", "28|:", "29|000", "33|a",  "57|b",
                              "79|9",  "80|x", "81|400", "86|@",  "89|1", "90|:",   "91|40"};
        QTest::newRow("kilometres without metres")
            << 10 << Row{"10", "", "", "", "", "", "", "", "", "", "", "", "", ""}
            << QByteArrayList{"2| 10 ", "6|10", "8|,", "10|0"};
        QTest::newRow("metres without kilometres")
            << 1 << Row{"", "050", "", "", "", "", "", "", "", "", "", "", "", ""} << QByteArrayList{"3| 1 ", "9|050"};
        QTest::newRow("minutes without hours") << 2 << Row{"", "", "", "34", "10", "", "", "", "", "", "", "", "", ""}
                                               << QByteArrayList{"3| 2 ", "17|34", "19|:", "20|10"};
        QTest::newRow("average of seconds alone") << 3 << Row{"", "", "", "", "", "", "50", "", "", "", "", "", "", ""}
                                                  << QByteArrayList{"3| 3 ", "26|50", "28|:"};
        QTest::newRow("distance and times without repetitions")
            << 4 << Row{"", "", "", "", "", "", "", "", "", "", "", "1.000", "10", "05"}
            << QByteArrayList{"3| 4 ", "81|1.000", "88|10", "91|05"};
        QTest::newRow("zero repetitions draw no signs")
            << 5 << Row{"", "", "", "", "", "", "", "", "", "", "0", "", "", ""} << QByteArrayList{"3| 5 ", "79|0"};
    }

    void rows()
    {
        QFETCH(int, row);
        QFETCH(QList<QByteArray>, boxes);
        TableSheetTexts table = Blank();
        for (std::size_t column = 0; column < kColumns; ++column) {
            table.rows[static_cast<std::size_t>(row - 1)][column] = boxes[static_cast<int>(column)].toStdString();
        }
        QTEST(SheetRow(TableSheet(table), 6 + row), "printed");
    }
};

ZELVIA_TEST(TableSheetTest)
#include "TableSheetTest.moc"
