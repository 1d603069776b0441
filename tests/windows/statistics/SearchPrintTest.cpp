// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheets of a search and of a chart, from their windows.
#include "support/PrinterTray.h"
#include "support/SearchDesk.h"
#include "support/WindowTest.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zelvia::test
{

class SearchPrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSearch();
    void beforeAnySearch();
    void aPrinterThatFailsLeavesTheButtonOff();
    void aChartGoesByWayOfTheClipboard();
    void aChartThatFails();
    void anEnlargedChartPrintsInItsFirstSize();
    void theFocusComesBack_data();
    void theFocusComesBack();
    void theFocusComesBackToTheChart_data();
    void theFocusComesBackToTheChart();
};

namespace
{

QClipboard& Clipboard()
{
    return *QGuiApplication::clipboard();
}

} // namespace

void SearchPrintTest::aSearch()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Demand(Categoria::Percorso, QStringLiteral("Pista dello stadio"));
    desk.TypePeriod("20|5|2026|20|5|2026");
    desk.Run();
    bool enabledMeanwhile = true;
    tray.whilePrinting = [&] { enabledMeanwhile = desk->cmdStampa->isEnabled(); };
    hand::Click(*desk->cmdStampa);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    QCOMPARE(tray.Row(0), (QByteArrayList{"80|20/05/2026"}));
    QCOMPARE(tray.Row(4), (QByteArrayList{"2|Periodo       dal ", "15|20", "18|5", "21|2026", "30| al ", "33|20",
                                          "36|5", "39|2026"}));
    QCOMPARE(tray.Row(6), (QByteArrayList{"2|Percorso", "15|Pista dello stadio", "45|Stagione"}));
    // The day of the page: 8 km in 0:41:55, 5:14 to the kilometre.
    QCOMPARE(tray.Row(22).mid(0, 4), (QByteArrayList{"2|8,0", "10|0:41:55", "22|5:14", "30|20/05/2026"}));
    QCOMPARE(tray.Row(25), (QByteArrayList{"10|Totali"}));
    QCOMPARE(tray.Row(27), (QByteArrayList{"2|Corse", "10| 1"}));
    QCOMPARE(tray.Row(29), (QByteArrayList{"2|Km", "10| 8"}));
    QCOMPARE(tray.Row(31), (QByteArrayList{"2|Tempi", "10| 0:41:55"}));
    QCOMPARE(tray.Row(33), (QByteArrayList{"2|Media", "10| 5:14"}));
    QVERIFY(!enabledMeanwhile);
    QVERIFY(desk->cmdStampa->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void SearchPrintTest::beforeAnySearch()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    hand::Click(*desk->cmdStampa);
    QCOMPARE(tray.Row(4), (QByteArrayList{"2|Periodo       dal ", "30| al "}));
    QCOMPARE(tray.Row(20), (QByteArrayList{"2|Km", "10|Tempi", "20|Media Km", "30|gg mm aaaa"}));
    QCOMPARE(tray.Row(23), (QByteArrayList{"10|Totali"}));
    QCOMPARE(tray.Row(25), (QByteArrayList{"2|Corse"}));
    VERIFY_SCRIPT(desk.script);
}

void SearchPrintTest::aPrinterThatFailsLeavesTheButtonOff()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    tray.broken = true;
    desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    hand::Click(*desk->cmdStampa);
    desk.AwaitBoxes();
    VERIFY_SCRIPT(desk.script);
    QVERIFY(!desk->cmdStampa->isEnabled());
}

void SearchPrintTest::aChartGoesByWayOfTheClipboard()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Run();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    SearchDesk::AwaitFront(*desk.Charts());
    Clipboard().setText(QStringLiteral("quello di prima"));
    QImage copied;
    tray.atTheEnd = [&] {
        copied = Clipboard().image();
        QVERIFY(!desk.Charts()->cmdStampa->isEnabled());
    };
    hand::Click(*desk.Charts()->cmdStampa);
    QVERIFY(tray.sheets.back().Paper() == Orientation::Landscape);
    QCOMPARE(SheetLines(tray.sheets.back()),
             (QByteArrayList{"125,0 Times New Roman 8 bold|20/05/2026", "box 2,1 132,47", "picture 15,3"}));
    // A picture of the whole chart lay on the clipboard, which is empty afterwards.
    QVERIFY(!copied.isNull());
    QCOMPARE(copied.width() * desk.Charts()->MSChart1->height(), copied.height() * desk.Charts()->MSChart1->width());
    QVERIFY(Clipboard().image().isNull());
    QVERIFY(Clipboard().text().isEmpty());
    QVERIFY(desk.Charts()->cmdStampa->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void SearchPrintTest::aChartThatFails()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Run();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    SearchDesk::AwaitFront(*desk.Charts());
    tray.broken = true;
    Clipboard().setText(QStringLiteral("quello di prima"));
    desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    hand::Click(*desk.Charts()->cmdStampa);
    TRY_SCRIPT(desk.script);
    QVERIFY(!desk.Charts()->cmdStampa->isEnabled());
    // The printer is asked for before the clipboard is touched.
    QCOMPARE(Clipboard().text(), QStringLiteral("quello di prima"));
}

void SearchPrintTest::anEnlargedChartPrintsInItsFirstSize()
{
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Run();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    frmGrafici& window = *desk.Charts();
    SearchDesk::AwaitFront(window);
    const QSize first = window.MSChart1->size();
    window.resize(window.size() + QSize(300, 120));
    QTRY_COMPARE(window.MSChart1->size(), first + QSize(300, 120));
    QImage copied;
    tray.atTheEnd = [&] { copied = Clipboard().image(); };
    hand::Click(*window.cmdStampa);
    QCOMPARE(copied.size(), first * 2);
    // At (15, 3) it stays inside the frame, whose far corner is (132, 47): cells of 1/12 by 1/6 inch.
    const double inchesPerDot = 1 / (copied.dotsPerMeterX() * 0.0254);
    QVERIFY(15 + copied.width() * inchesPerDot * 12 < 132);
    QVERIFY(3 + copied.height() * inchesPerDot * 6 < 47);
    VERIFY_SCRIPT(desk.script);
}

void SearchPrintTest::theFocusComesBack_data()
{
    QTest::addColumn<bool>("broken");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("printed") << false << QByteArray("cmdStampa");
    QTest::newRow("failed") << true << QByteArray("cmdAvvia");
}

void SearchPrintTest::theFocusComesBack()
{
    QFETCH(bool, broken);
    QFETCH(QByteArray, focus);
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Run();
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdAvvia"));
    tray.broken = broken;
    if (broken) {
        desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    }
    hand::Click(*desk->cmdStampa);
    desk.AwaitBoxes();
    QTRY_COMPARE(SearchDesk::Focused(), focus);
    VERIFY_SCRIPT(desk.script);
}

void SearchPrintTest::theFocusComesBackToTheChart_data()
{
    QTest::addColumn<bool>("broken");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("printed") << false << QByteArray("cmdStampa");
    QTest::newRow("failed") << true << QByteArray("cmdEsci");
}

void SearchPrintTest::theFocusComesBackToTheChart()
{
    QFETCH(bool, broken);
    QFETCH(QByteArray, focus);
    SearchDesk desk;
    PrinterTray tray;
    desk.StartSearch();
    desk.Run();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    SearchDesk::AwaitFront(*desk.Charts());
    // "Esci" has had the focus before, and only then is it the one to have it again.
    desk.Charts()->cmdEsci->SetFocus();
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdEsci"));
    tray.broken = broken;
    if (broken) {
        desk.script.Expect(Report(QLatin1String(kPrinterReport)));
    }
    hand::Click(*desk.Charts()->cmdStampa);
    TRY_SCRIPT(desk.script);
    QTRY_COMPARE(SearchDesk::Focused(), focus);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SearchPrintTest)
#include "SearchPrintTest.moc"
