// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet of a training table, from the boxes of the editor.
#include "support/PrinterTray.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

using namespace TableGrid;

class EditorPrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatStandsInTheBoxes();
    void theDayOnShow();
    void aNewTable();
    void theButtonIsOffMeanwhile();
    void aPrinterThatFailsLeavesTheButtonOff();
    void theFocusComesBack_data();
    void theFocusComesBack();
};

void EditorPrintTest::whatStandsInTheBoxes()
{
    TableDesk desk;
    PrinterTray tray;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    // Typed, and not accepted with OK.
    desk.Write(desk.Box(Fondo, 3), QStringLiteral("Sterrato"));
    desk.Click(*desk.Editor()->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    QCOMPARE(tray.Row(0), (QByteArrayList{"80|20/05/2026"}));
    QCOMPARE(tray.Row(1), (QByteArrayList{"26|Tabella allenamento : Base 10 km    di   "}));
    QCOMPARE(tray.Row(7), (QByteArrayList{"3| 1 ", "7|6", "8|,", "10|0", "17|34", "19|:", "24|5", "25|:", "26|40",
                                          "28|:", "33|Media", "57|Strada"}));
    QCOMPARE(tray.Row(9), (QByteArrayList{"3| 3 ", "57|Sterrato"}));
    QCOMPARE(tray.Row(28), (QByteArrayList{"2| 22 ", "6|10", "8|,", "10|0", "33|Media/Veloce", "57|Strada", "79|3",
                                           "80|x", "81|2.000", "86|@", "89|9", "90|:", "91|45"}));
    QCOMPARE(tray.Row(40), (QByteArrayList{"2| Data Inizio", "14|2", "17|3", "20|2026"}));
    VERIFY_SCRIPT(desk.script);
}

/// The date of the sheet is that of the page, whatever day it is.
void EditorPrintTest::theDayOnShow()
{
    TableDesk desk;
    PrinterTray tray;
    desk.Start();
    desk.Down(*desk->upMese);
    desk.Down(*desk->upGiorno);
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    desk.Click(*desk.Editor()->cmdStampa);
    QCOMPARE(tray.Row(0), (QByteArrayList{"80|19/04/2026"}));
    VERIFY_SCRIPT(desk.script);
}

void EditorPrintTest::aNewTable()
{
    TableDesk desk;
    PrinterTray tray;
    desk.StartNew();
    desk.Click(*desk.Editor()->cmdStampa);
    QCOMPARE(tray.Row(1), (QByteArrayList{"26|Tabella allenamento "}));
    QCOMPARE(tray.Row(37), (QByteArrayList{"2| 31 "}));
    QCOMPARE(tray.Row(40), (QByteArrayList{"2| Data Inizio"}));
    VERIFY_SCRIPT(desk.script);
}

void EditorPrintTest::theButtonIsOffMeanwhile()
{
    TableDesk desk;
    PrinterTray tray;
    desk.StartNew();
    bool enabledMeanwhile = true;
    tray.whilePrinting = [&] { enabledMeanwhile = desk.Editor()->cmdStampa->isEnabled(); };
    desk.Click(*desk.Editor()->cmdStampa);
    QVERIFY(!enabledMeanwhile);
    QVERIFY(desk.Editor()->cmdStampa->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void EditorPrintTest::aPrinterThatFailsLeavesTheButtonOff()
{
    TableDesk desk;
    PrinterTray tray;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    tray.broken = true;
    desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    desk.Click(*desk.Editor()->cmdStampa);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(!desk.Editor()->cmdStampa->isEnabled());
    // Closed and opened again, it prints.
    desk.LeaveEditor();
    tray.broken = false;
    desk.OpenTable("Base 10 km.tab");
    desk.Click(*desk.Editor()->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    VERIFY_SCRIPT(desk.script);
}

void EditorPrintTest::theFocusComesBack_data()
{
    QTest::addColumn<bool>("broken");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("printed") << false << QByteArray("cmdStampa");
    QTest::newRow("failed") << true << QByteArray("txtFondo(3)");
}

void EditorPrintTest::theFocusComesBack()
{
    QFETCH(bool, broken);
    QFETCH(QByteArray, focus);
    TableDesk desk;
    PrinterTray tray;
    desk.StartWith("Base 10 km.tab");
    hand::Click(desk.Box(Fondo, 3));
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtFondo(3)"));
    tray.broken = broken;
    if (broken) {
        desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    }
    hand::Click(*desk.Editor()->cmdStampa);
    desk.AwaitBoxes();
    QTRY_COMPARE(TableDesk::Focused(), focus);
    // Enter, where it lies, closes nothing.
    tray.broken = false;
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(tray.sheets.size(), std::size_t(broken ? 0 : 2));
    QVERIFY(desk.Editor() != nullptr);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorPrintTest)
#include "EditorPrintTest.moc"
