// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The date of the page: where it starts, how the arrows move it and where they stop.
#include "diary/TableModel.h"
#include "support/DayPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

namespace
{

CalendarDate Parsed(const QString& date)
{
    return DateValue(FromQString(date));
}

} // namespace

class DatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsOnTheSystemDateHeldToTheRange_data();
    void startsOnTheSystemDateHeldToTheRange();
    void arrowsMoveTheDate_data();
    void arrowsMoveTheDate();
    void theLostDayOfAMonthDoesNotComeBack();
    void dateArrowsAppearWithTheFirstClick();
    void arrowsFireBeyondTheirOwnLimits();
    void slotAfter28February_data();
    void slotAfter28February();
    void aMoveCommitsTheDayAndShowsTheNext();
    void aRequestOfTheTableEditorIsTakenUp();
};

void DatesTest::startsOnTheSystemDateHeldToTheRange_data()
{
    QTest::addColumn<QString>("today");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("dayOfYear");
    QTest::newRow("1995") << "15/06/1995"
                          << "01/01/2001"
                          << "   lunedì  1  gennaio  2001"
                          << "1";
    QTest::newRow("2105") << "03/02/2105"
                          << "31/12/2099"
                          << "   giovedì  31  dicembre  2099"
                          << "365";
    QTest::newRow("first day") << "01/01/2001"
                               << "01/01/2001"
                               << "   lunedì  1  gennaio  2001"
                               << "1";
    QTest::newRow("last day") << "31/12/2099"
                              << "31/12/2099"
                              << "   giovedì  31  dicembre  2099"
                              << "365";
    QTest::newRow("leap day") << "29/02/2028"
                              << "29/02/2028"
                              << "   martedì  29  febbraio  2028"
                              << "60";
    QTest::newRow("end of a leap year") << "31/12/2028"
                                        << "31/12/2028"
                                        << "   domenica  31  dicembre  2028"
                                        << "366";
    QTest::newRow("a common day") << "20/05/2026"
                                  << "20/05/2026"
                                  << "   mercoledì  20  maggio  2026"
                                  << "140";
}

void DatesTest::startsOnTheSystemDateHeldToTheRange()
{
    QFETCH(QString, today);
    QFETCH(QString, shown);
    QFETCH(QString, caption);
    QFETCH(QString, dayOfYear);
    DayPage page(Parsed(today));
    page.Start();
    const CalendarDate date = Parsed(shown);
    QVERIFY(Module1::DataCorrente == date);
    QCOMPARE(page.Caption("lblData"), caption);
    QCOMPARE(page.Caption("lblNumGiornoAnno"), dayOfYear);
    QCOMPARE(QString::number(Module1::GiornoCorrente.value()), dayOfYear);
    QVERIFY(page->GiornoMese == date.Day());
    QVERIFY(page->MeseCorrente == date.Month());
    QVERIFY(page->AnnoCorrente == date.Year());
    QVERIFY(page->DataMinima == CalendarDate(2001, 1, 1));
    QVERIFY(page->DataMassima == CalendarDate(2099, 12, 31));
    VERIFY_SCRIPT(page.script);
}

void DatesTest::arrowsMoveTheDate_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("arrow");
    QTest::addColumn<QString>("to");
    const struct {
        const char* from;
        const char* arrow;
        const char* to;
    } rows[] = {
        {"20/05/2026", "giorno up", "21/05/2026"},
        {"20/05/2026", "giorno down", "19/05/2026"},
        {"20/05/2026", "mese up", "20/06/2026"},
        {"20/05/2026", "mese down", "20/04/2026"},
        // Ends of months.
        {"30/04/2026", "giorno up", "01/05/2026"},
        {"01/05/2026", "giorno down", "30/04/2026"},
        {"28/02/2026", "giorno up", "01/03/2026"},
        {"01/03/2026", "giorno down", "28/02/2026"},
        {"28/02/2028", "giorno up", "29/02/2028"},
        {"29/02/2028", "giorno up", "01/03/2028"},
        {"01/03/2028", "giorno down", "29/02/2028"},
        {"31/01/2026", "mese up", "28/02/2026"},
        {"31/01/2028", "mese up", "29/02/2028"},
        {"29/02/2028", "mese up", "29/03/2028"},
        {"29/02/2028", "mese down", "29/01/2028"},
        {"31/03/2026", "mese down", "28/02/2026"},
        {"31/08/2026", "mese up", "30/09/2026"},
        {"31/10/2026", "mese down", "30/09/2026"},
        // The year is never left.
        {"31/12/2026", "giorno up", "31/12/2026"},
        {"01/01/2026", "giorno down", "01/01/2026"},
        {"31/12/2028", "giorno up", "31/12/2028"},
        {"01/12/2026", "mese up", "01/12/2026"},
        {"31/12/2026", "mese up", "31/12/2026"},
        {"01/01/2026", "mese down", "01/01/2026"},
        {"31/01/2026", "mese down", "31/01/2026"},
        {"30/12/2026", "giorno up", "31/12/2026"},
        {"02/01/2026", "giorno down", "01/01/2026"},
        {"30/11/2026", "mese up", "30/12/2026"},
        {"15/02/2026", "mese down", "15/01/2026"},
        // Over the edge of the whole range the step is undone twice.
        {"01/01/2001", "giorno down", "02/01/2001"},
        {"31/12/2099", "giorno up", "30/12/2099"},
        {"15/01/2001", "mese down", "15/02/2001"},
        {"15/12/2099", "mese up", "15/11/2099"},
        {"31/01/2001", "mese down", "28/02/2001"},
        {"31/12/2099", "mese up", "30/11/2099"},
        // The other way there is no edge.
        {"01/01/2001", "giorno up", "02/01/2001"},
        {"01/01/2001", "mese up", "01/02/2001"},
        {"31/12/2099", "giorno down", "30/12/2099"},
        {"31/12/2099", "mese down", "30/11/2099"},
    };
    for (const auto& row : rows) {
        QTest::addRow("%s %s", row.from, row.arrow) << row.from << row.arrow << row.to;
    }
}

void DatesTest::arrowsMoveTheDate()
{
    QFETCH(QString, from);
    QFETCH(QString, arrow);
    QFETCH(QString, to);
    DayPage page(Parsed(from));
    page.Start();
    page.Click(*page->lblData);
    // Committed by the step, also by one that is undone.
    const i16 slot = Module1::GiornoCorrente;
    page->upKM->SetValue(137);
    UpDown& spin = arrow.startsWith(QLatin1String("giorno")) ? *page->upGiorno : *page->upMese;
    if (arrow.endsWith(QLatin1String("up"))) {
        page.Up(spin);
    } else {
        page.Down(spin);
    }
    QCOMPARE(QString::fromStdString(PlainText(Module1::DataCorrente)), to);
    QVERIFY(Module1::Giorni[slot].Km == 137);
    QVERIFY(page->upKM->Value() == Module1::Giorni[Module1::GiornoCorrente].Km);
    const CalendarDate date = Parsed(to);
    QVERIFY(Module1::GiornoCorrente == date.DayOfYear());
    QVERIFY(page->GiornoMese == date.Day());
    QVERIFY(page->MeseCorrente == date.Month());
    QVERIFY(page->AnnoCorrente == date.Year());
    QCOMPARE(page.Caption("lblNumGiornoAnno"), QString::number(date.DayOfYear().value()));
    VERIFY_SCRIPT(page.script);
}

void DatesTest::theLostDayOfAMonthDoesNotComeBack()
{
    DayPage page(CalendarDate(2026, 1, 31));
    page.Start();
    for (const char* shown : {"28/02/2026", "28/03/2026", "28/04/2026"}) {
        page.Up(*page->upMese);
        QCOMPARE(QString::fromStdString(PlainText(Module1::DataCorrente)), QLatin1String(shown));
    }
    VERIFY_SCRIPT(page.script);
}

void DatesTest::dateArrowsAppearWithTheFirstClick()
{
    DayPage page;
    page.Start();
    QVERIFY(!page->upGiorno->isVisible());
    QVERIFY(!page->upMese->isVisible());
    page.Click(*page->lblData);
    QVERIFY(page->upGiorno->isVisible());
    QVERIFY(page->upMese->isVisible());
    QTRY_VERIFY(page->upGiorno->hasFocus());
    QTest::keyClick(page->upGiorno, Qt::Key_Up);
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 5, 21));
    QTest::keyClick(page->upGiorno, Qt::Key_Down);
    QTest::keyClick(page->upGiorno, Qt::Key_Down);
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 5, 19));
    VERIFY_SCRIPT(page.script);
}

void DatesTest::arrowsFireBeyondTheirOwnLimits()
{
    // upGiorno ends at 31 and upMese at 12, and both start at 0: neither end stops the date.
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    for (int i = 0; i < 40; ++i) {
        page.Up(*page->upGiorno);
    }
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 4, 10));
    QCOMPARE(page->upGiorno->Value().value(), 31);
    for (int i = 0; i < 3; ++i) {
        page.Down(*page->upMese);
    }
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 1, 10));
    QCOMPARE(page->upMese->Value().value(), 0);
    VERIFY_SCRIPT(page.script);
}

void DatesTest::slotAfter28February_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("marchSlot");
    QTest::addColumn<int>("lastSlot");
    QTest::newRow("common") << 2026 << 60 << 365;
    QTest::newRow("leap") << 2028 << 61 << 366;
    QTest::newRow("not leap at the century's start of the range") << 2001 << 60 << 365;
}

void DatesTest::slotAfter28February()
{
    QFETCH(int, year);
    QFETCH(int, marchSlot);
    QFETCH(int, lastSlot);
    DayPage page(CalendarDate(year, 2, 28));
    page.Start();
    QVERIFY(Module1::GiornoCorrente == 59);
    while (page->MeseCorrente == 2) {
        page.Up(*page->upGiorno);
    }
    QVERIFY(Module1::DataCorrente == CalendarDate(year, 3, 1));
    QCOMPARE(page.Caption("lblNumGiornoAnno"), QString::number(marchSlot));
    page.GoTo(lastSlot);
    QVERIFY(Module1::DataCorrente == CalendarDate(year, 12, 31));
    VERIFY_SCRIPT(page.script);
}

void DatesTest::aMoveCommitsTheDayAndShowsTheNext()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    Module1::Giorni[61].Km = 7;
    page->upKM->SetValue(21);
    page.Up(*page->upGiorno);
    QVERIFY(Module1::Giorni[60].Km == 21);
    QCOMPARE(page->upKM->Value().value(), 7);
    QVERIFY(Module1::FileModificato == 1);
    VERIFY_SCRIPT(page.script);
}

void DatesTest::aRequestOfTheTableEditorIsTakenUp()
{
    DayPage page;
    page.Start();
    QCOMPARE(page->tmrFocus->Interval(), 500);
    QCOMPARE(page.Caption("lblTimerTab"), QStringLiteral("0"));
    // Without an active table only the neutral values come back.
    page->lblKmTab->SetCaption("12,500");
    page->lblTimerTab->SetCaption("1");
    QTRY_COMPARE(page.Caption("lblTimerTab"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblKmTab"), QStringLiteral("0,0"));
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Nessuna tabella attiva"));

    // With one, its name is shown and the file read; the request is met once. What stays in memory when the file is
    // missing starts after the day shown, so the panel stays neutral.
    Module1::TabDataInizio = CalendarDate(2026, 6, 1);
    Module1::NomeTabellaAttiva = page.folder.System(QStringLiteral("prova/missing.tab"));
    page.script.Expect(Report(QStringLiteral("ERRORE : 53 File non trovato")));
    page->lblTimerTab->SetCaption("1");
    QTRY_COMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("missing"));
    QCOMPARE(page.Caption("lblTimerTab"), QStringLiteral("0"));
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::DatesTest)
#include "DatesTest.moc"
