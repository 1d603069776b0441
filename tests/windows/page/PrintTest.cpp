// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheet of the day, from the labels of the page.
#include "support/DayPage.h"
#include "support/PrinterTray.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class PrintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatThePageShows();
    void whatIsNotCommittedYet();
    void nothingIsCommittedByPrinting();
    void theEntryIsOffMeanwhile();
    void theHourglassShowsMeanwhile();
    void aPrinterThatFails();
    void theDispatcherPrintsToo();
};

namespace
{

QAction& Entry(const DayPage& page)
{
    return *page->findChild<QAction*>(QStringLiteral("mnuFilePrint"));
}

} // namespace

void PrintTest::whatThePageShows()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    page.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    QCOMPARE(tray.Row(2), (QByteArrayList{"40|20/05/2026"}));
    QCOMPARE(tray.Row(4),
             (QByteArrayList{"4|Percorso ", "16|Pista dello stadio", "48|ALLENAMENTO :  Nessuna tabella attiva"}));
    QCOMPARE(tray.Row(6), (QByteArrayList{"4|Lunghezza", "16|Medio/Corto", "48|Km", "62|0,0"}));
    QCOMPARE(tray.Row(8), (QByteArrayList{"4|Km", "16|8,000", "48|Tempo", "62|0:0:0"}));
    QCOMPARE(tray.Row(16), (QByteArrayList{"4|Ora Inizio", "16|18:00:00", "48|Ripetizioni", "62|0 x 0  @  0:0"}));
    QCOMPARE(tray.Row(24), (QByteArrayList{"4|Stagione", "16|Primavera"}));
    QCOMPARE(tray.Row(40), (QByteArrayList{"4|Giorno dell'anno", "21|140"}));
    VERIFY_SCRIPT(page.script);
}

void PrintTest::whatIsNotCommittedYet()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    page->lblImmisMetri->SetCaption("9,123");
    page->lblNumKMPercorsi->SetCaption("");
    page.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(tray.Row(8).value(1), QByteArray("16|9,123"));
    QCOMPARE(tray.Row(44), (QByteArrayList{"4|Km percorsi"}));
    VERIFY_SCRIPT(page.script);
}

void PrintTest::nothingIsCommittedByPrinting()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    page->ListField(SelectionList::Percorso).lblImmis->SetCaption("Altrove");
    page.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(tray.Row(4).value(1), QByteArray("16|Altrove"));
    QVERIFY(DayPage::Day().Percorso == "Pista dello stadio");
    VERIFY_SCRIPT(page.script);
}

void PrintTest::theEntryIsOffMeanwhile()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    bool enabledMeanwhile = true;
    tray.whilePrinting = [&] { enabledMeanwhile = Entry(page).isEnabled(); };
    page.Menu("mnuFile", Qt::Key_T);
    QVERIFY(!enabledMeanwhile);
    QVERIFY(Entry(page).isEnabled());
    VERIFY_SCRIPT(page.script);
}

void PrintTest::theHourglassShowsMeanwhile()
{
    DayPage page;
    page.Start();
    int printed = 0;
    SetPrinterHandler([&printed](const Sheet& /*sheet*/) {
        ++printed;
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    page.Menu("mnuFile", Qt::Key_T);
    SetPrinterHandler({});
    QCOMPARE(printed, 1);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    VERIFY_SCRIPT(page.script);
}

void PrintTest::aPrinterThatFails()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    tray.broken = true;
    page.script.Expect(Report(QLatin1String(kPrinterReport)));
    page.Menu("mnuFile", Qt::Key_T);
    VERIFY_SCRIPT(page.script);
    // The entry is on again, and the next try prints.
    QVERIFY(Entry(page).isEnabled());
    tray.broken = false;
    page.Menu("mnuFile", Qt::Key_T);
    QCOMPARE(tray.sheets.size(), std::size_t(1));
    VERIFY_SCRIPT(page.script);
}

void PrintTest::theDispatcherPrintsToo()
{
    DayPage page;
    PrinterTray tray;
    page.Start();
    page->DispatchCommand("Print");
    QCOMPARE(tray.sheets.size(), std::size_t(1));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PrintTest)
#include "PrintTest.moc"
