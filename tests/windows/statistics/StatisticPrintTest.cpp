// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet of a statistic, from its window.
#include "diary/Module1.h"
#include "support/PrinterTray.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class StatisticPrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values();
    void numbers();
    void nothingCounted();
    void aPrinterThatFailsLeavesTheButtonOff();
    void theFocusComesBack_data();
    void theFocusComesBack();
};

void StatisticPrintTest::values()
{
    StatisticsDesk desk;
    PrinterTray tray;
    desk.Start();
    StatisticsDesk::PutRun(3, "Pista", "0:40:00", "5:00");
    StatisticsDesk::PutRun(5, "Lungofiume", "0:40:00", "5:00");
    StatisticsDesk::PutRun(9, "Lungofiume", "0:40:00", "5:00");
    desk.Choose("mnuPercorso");
    bool enabledMeanwhile = true;
    tray.whilePrinting = [&] { enabledMeanwhile = desk.Window()->cmdStampa->isEnabled(); };
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.Row(0), (QByteArrayList{"80|20/05/2026"}));
    QCOMPARE(tray.Row(2), (QByteArrayList{"35|       Statistica Percorso"}));
    QCOMPARE(tray.Row(5), (QByteArrayList{"13|Lungofiume", "43| 2 "}));
    QCOMPARE(tray.Row(7), (QByteArrayList{"13|Pista", "43| 1 "}));
    QCOMPARE(tray.Row(9), QByteArrayList());
    QVERIFY(!enabledMeanwhile);
    QVERIFY(desk.Window()->cmdStampa->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void StatisticPrintTest::numbers()
{
    StatisticsDesk desk;
    PrinterTray tray;
    desk.Start();
    // Of the days with a distance two have no runners: that slot keeps its line, empty.
    const std::pair<int, int> runners[] = {{2, 0}, {3, 0}, {4, 7}};
    for (const auto& [slot, number] : runners) {
        Module1::Giorni[slot].Km = 5;
        Module1::Giorni[slot].Corridori = number;
    }
    desk.Choose("mnuCorridori");
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.Row(5), QByteArrayList());
    QCOMPARE(tray.Row(7), (QByteArrayList{"13| 7 ", "43| 1 "}));
    VERIFY_SCRIPT(desk.script);
}

void StatisticPrintTest::nothingCounted()
{
    StatisticsDesk desk;
    PrinterTray tray;
    desk.Start();
    desk.Choose("mnuRipetizioni");
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(SheetLines(tray.sheets.back()), (QByteArrayList{"80,0 Times New Roman 8|20/05/2026", "box 10,1 87,66",
                                                             "35,2 Times New Roman 12|       Statistica Ripetizioni"}));
    VERIFY_SCRIPT(desk.script);
}

void StatisticPrintTest::aPrinterThatFailsLeavesTheButtonOff()
{
    StatisticsDesk desk;
    PrinterTray tray;
    desk.Start();
    desk.Choose("mnuTipo");
    tray.broken = true;
    desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    desk.Click(*desk.Window()->cmdStampa);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(!desk.Window()->cmdStampa->isEnabled());
    desk.Leave();
    tray.broken = false;
    desk.Choose("mnuTipo");
    desk.Click(*desk.Window()->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    VERIFY_SCRIPT(desk.script);
}

void StatisticPrintTest::theFocusComesBack_data()
{
    QTest::addColumn<bool>("broken");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("printed") << false << QByteArray("cmdStampa");
    QTest::newRow("failed") << true << QByteArray("cmdTempiLO");
}

void StatisticPrintTest::theFocusComesBack()
{
    QFETCH(bool, broken);
    QFETCH(QByteArray, focus);
    StatisticsDesk desk;
    PrinterTray tray;
    desk.Start();
    StatisticsDesk::PutRun(3, "Pista", "0:40:00", "5:00");
    desk.Choose("mnuPercorso");
    desk.Window()->cmdTempiLO->SetFocus();
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("cmdTempiLO"));
    tray.broken = broken;
    if (broken) {
        desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    }
    hand::Click(*desk.Window()->cmdStampa);
    TRY_SCRIPT(desk.script);
    QTRY_COMPARE(StatisticsDesk::Focused(), focus);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::StatisticPrintTest)
#include "StatisticPrintTest.moc"
