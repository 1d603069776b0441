// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet of a page of the calendar, from its boxes.
#include "support/Bytes.h"
#include "support/CalendarDesk.h"
#include "support/PrinterTray.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

namespace
{

/// The text of a row of the sheet printed last, from a column on.
QByteArrayList RightOf(const PrinterTray& tray, int y, int column)
{
    QByteArrayList row = tray.Row(y);
    row.removeIf([column](const QByteArray& text) { return text.left(text.indexOf('|')).toInt() < column; });
    return row;
}

} // namespace

class CalendarPrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageOnTheScreen();
    void anotherPage();
    void aPageWithoutRaces();
    void aPrinterThatFailsLeavesTheButtonOff();
    void theFocusComesBack_data();
    void theFocusComesBack();
    void theSheetOfARaceDayWithAPlan();
};

void CalendarPrintTest::thePageOnTheScreen()
{
    CalendarDesk desk;
    PrinterTray tray;
    desk.StartOpen();
    // Typed, and not saved.
    desk.WriteRow(1, "7|6|2026|Notturna|Lecco|10|050|1234|87||45|30|S50|9");
    bool enabledMeanwhile = true;
    tray.whilePrinting = [&] { enabledMeanwhile = desk.Window()->cmdStampa->isEnabled(); };
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    QVERIFY(tray.sheets.back().Paper() == Orientation::Landscape);
    QCOMPARE(tray.Row(0), (QByteArrayList{"124|20/05/2026"}));
    QCOMPARE(tray.Row(1), (QByteArrayList{"60|Calendario Gare       di  "}));
    QCOMPARE(tray.Row(7), (QByteArrayList{"3|7", "6|6", "8|2026", "13|Notturna", "45|Lecco", "66|10", "68|,", "69|050",
                                          "78|1.234", "90|87", "103|45", "105|:", "106|30", "112|S50", "124|9"}));
    QCOMPARE(tray.Row(8), QByteArrayList());
    QVERIFY(!enabledMeanwhile);
    QVERIFY(desk.Window()->cmdStampa->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void CalendarPrintTest::anotherPage()
{
    CalendarDesk desk;
    PrinterTray tray;
    desk.StartOpen();
    desk.WriteRow(1, "7|6|2026|Notturna|Lecco|10||||||||");
    desk.NextPage();
    desk.WriteRow(20, "8|11|2026|Campestre|Como|6||||||||");
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.Row(7), QByteArrayList());
    QCOMPARE(tray.Row(26),
             (QByteArrayList{"3|8", "5|11", "8|2026", "13|Campestre", "45|Como", "67|6", "68|,", "69|0"}));
    VERIFY_SCRIPT(desk.script);
}

void CalendarPrintTest::aPageWithoutRaces()
{
    CalendarDesk desk;
    PrinterTray tray;
    desk.StartOpen();
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.Row(5).size(), 9);
    for (int y = 6; y <= 26; ++y) {
        QCOMPARE(tray.Row(y), QByteArrayList());
    }
    VERIFY_SCRIPT(desk.script);
}

void CalendarPrintTest::aPrinterThatFailsLeavesTheButtonOff()
{
    CalendarDesk desk;
    PrinterTray tray;
    desk.StartOpen();
    tray.broken = true;
    desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    desk.Click(*desk.Window()->cmdStampa);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(!desk.Window()->cmdStampa->isEnabled());
    desk.Leave();
    tray.broken = false;
    desk.OpenCalendar();
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    VERIFY_SCRIPT(desk.script);
}

void CalendarPrintTest::theFocusComesBack_data()
{
    QTest::addColumn<bool>("broken");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("printed") << false << QByteArray("cmdStampa");
    QTest::newRow("failed") << true << QByteArray("txtGare(2)");
}

void CalendarPrintTest::theFocusComesBack()
{
    QFETCH(bool, broken);
    QFETCH(QByteArray, focus);
    CalendarDesk desk;
    PrinterTray tray;
    desk.StartOpen();
    hand::Click(desk.Box(RaceColumn::Gara, 2));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtGare(2)"));
    tray.broken = broken;
    if (broken) {
        desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    }
    hand::Click(*desk.Window()->cmdStampa);
    TRY_SCRIPT(desk.script);
    QTRY_COMPARE(EntryPage::Focused(), focus);
}

void CalendarPrintTest::theSheetOfARaceDayWithAPlan()
{
    CalendarBytes file;
    file.SetRow(3, "20|5|2026|Corrida|Lago|10|50|1234|592|0|49|6|MM45|84");
    CalendarDesk desk(file);
    desk.folder.Write(QStringLiteral("prova/nometab"),
                      '"' + Bytes(desk.folder.System(QStringLiteral("prova/Base 10 km.tab"))) + "\"\r\n");
    PrinterTray tray;
    desk.Start();
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    desk.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    constexpr int right = 48;
    QCOMPARE(RightOf(tray, 4, right), (QByteArrayList{"48|GARA :  ", "62|Corrida"}));
    QCOMPARE(RightOf(tray, 6, right), (QByteArrayList{"48|Localit\xE0 ", "62|Lago"}));
    QCOMPARE(RightOf(tray, 8, right), (QByteArrayList{"48|Partecipanti", "62|1.234"}));
    QCOMPARE(RightOf(tray, 10, right), (QByteArrayList{"48|Tempo Impiegato", "62|0:49:06"}));
    QCOMPARE(RightOf(tray, 12, right), (QByteArrayList{"48|Lunghezza", "62|10,50"}));
    QCOMPARE(RightOf(tray, 14, right), (QByteArrayList{"48|Risultato", "62|592"}));
    QCOMPARE(RightOf(tray, 16, right), (QByteArrayList{"48|Categoria", "62|MM45"}));
    QCOMPARE(RightOf(tray, 18, right), (QByteArrayList{"48|Risultato", "62|84"}));
    // The plan has its row again on the next day.
    desk.Up(*desk->upGiorno);
    desk.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(RightOf(tray, 4, right), (QByteArrayList{"48|ALLENAMENTO :  Base 10 km"}));
    QCOMPARE(RightOf(tray, 6, right), (QByteArrayList{"48|Km", "62|6,0"}));
    QCOMPARE(RightOf(tray, 18, right), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::CalendarPrintTest)
#include "CalendarPrintTest.moc"
