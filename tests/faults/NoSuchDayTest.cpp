// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the routines report that meet a day beyond the 366 of the diary.
#include "support/EntryPage.h"
#include "support/PlanDesk.h"
#include "support/SearchDesk.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"
#include "toolkit/FocusController.h"

#include <QAction>

namespace zelvia::test
{
namespace
{

constexpr int kNoSuchDay = 400;
constexpr int kDay = 140; // 20 May

ExpectedBox OutOfBounds(const QString& routine)
{
    return Report(routine + QStringLiteral(" - ERRORE : 9 Indice oltre i limiti"));
}

/// The commit of a day that is none, as the commands begin with it.
void ExpectCommit(BoxScript& script)
{
    script.Expect(OutOfBounds(QStringLiteral("ControllaSave")));
    script.Expect(OutOfBounds(QStringLiteral("AssegnaCampi")));
}

void AddStatistics()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("routine");
    QTest::addColumn<QString>("list");
    QTest::addColumn<Categoria>("category");
    int category = 0;
    const auto add = [&category](const char* entry, const char* routine, const char* list) {
        QTest::newRow(routine) << QStringLiteral("mnu") + QLatin1String(entry) << QString::fromLatin1(routine)
                               << QStringLiteral("Lista ") + QLatin1String(list) << static_cast<Categoria>(category++);
    };
    add("Percorso", "StatisPercorso", "Percorso");
    add("Lunghezza", "StatisLunghezza", "Lunghezza");
    add("Km", "StatisKm", "Km");
    add("Andatura", "SatisAndatura", "Andatura");
    add("Fondo", "StatisFondo", "Fondo");
    add("Tipo", "StatisTipo", "Tipo");
    add("Stagione", "StatisStagione", "Stagione");
    add("Meteo", "StatisMeteo", "Meteo");
    add("Temperatura", "StatisTemperatura", "Temperatura");
    add("Corridori", "StatisCorridori", "Corridori");
    add("Peso", "StatisPeso", "Peso");
    add("Ripetizioni", "StatisRipetizioni", "Ripetizioni");
}

} // namespace

class NoSuchDayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepOfTheDate();
    void blankedDay();
    void counters();
    void timesGiven();
    void timesTakenBack();
    void timesOfARoute();
    void activeTable();
    void statistics_data() { AddStatistics(); }
    void statistics();
    void listsOfTheSearch_data() { AddStatistics(); }
    void listsOfTheSearch();
    void search();
    void timesOfAValue_data();
    void timesOfAValue();
};

void NoSuchDayTest::stepOfTheDate()
{
    EntryPage page;
    page.Start();
    Module1::GiornoCorrente = kNoSuchDay;
    ExpectCommit(page.script);
    page.script.Expect(OutOfBounds(QStringLiteral("AzzeraCampi")));
    page.Up(*page->upGiorno);
    VERIFY_SCRIPT(page.script);
    // The step itself goes on.
    QCOMPARE(Module1::GiornoCorrente, kDay + 1);
}

void NoSuchDayTest::blankedDay()
{
    EntryPage page;
    page.Start();
    Module1::GiornoCorrente = kNoSuchDay;
    page.script.Expect({QStringLiteral("AZZERARE I DATI DEL GIORNO ?              "), QMessageBox::Information,
                        QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok});
    page.script.Expect(BareReport(QStringLiteral("9 Indice oltre i limiti")));
    page.script.Expect(OutOfBounds(QStringLiteral("AzzeraCampi")));
    page.script.Expect(OutOfBounds(QStringLiteral("VisualizzaGiorno")));
    page.TakeEntry("mnuOpzioni", "mnuAzzeraGiorno");
    TRY_SCRIPT(page.script);
}

void NoSuchDayTest::counters()
{
    EntryPage page;
    page.Start();
    Module1::GiornoCorrente = kNoSuchDay;
    page.script.Expect(OutOfBounds(QStringLiteral("DatiAnno")));
    page->DatiAnno();
    VERIFY_SCRIPT(page.script);
}

void NoSuchDayTest::timesGiven()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblImmisOraFine);
    page.Up(*page->upOraFine);
    page->upKM->SetValue(1);
    Module1::GiornoCorrente = kNoSuchDay;
    page.script.Expect(OutOfBounds(QStringLiteral("ListavOrdinata")));
    hand::Click(*page->lblOraFine);
    TRY_SCRIPT(page.script);
    QCOMPARE(page->lblOutTempoImpiegato->text(), QStringLiteral("1:00:00"));
}

void NoSuchDayTest::timesTakenBack()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblImmisOraFine);
    Module1::GiornoCorrente = kNoSuchDay;
    page.script.Expect(OutOfBounds(QStringLiteral("ControlloTempiKm")));
    hand::Click(*page->lblOraFine);
    TRY_SCRIPT(page.script);
}

void NoSuchDayTest::timesOfARoute()
{
    EntryPage page;
    page.Start();
    page.Open(1);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(1).lst, 0);
    Module1::GiornoCorrente = kNoSuchDay;
    page.script.Expect(OutOfBounds(QStringLiteral("ListavOrdinataDue")));
    page.PopUp(*page.Field(1).lst, Qt::Key_T, false);
    TRY_SCRIPT(page.script);
}

void NoSuchDayTest::activeTable()
{
    PlanDesk desk;
    desk.PutTable(QStringLiteral("piano.tab"), CountedTable(QDate(2026, 5, 1)));
    desk.Activate("piano.tab");
    desk.Begin();
    Module1::GiornoCorrente = kNoSuchDay;
    desk.script.Expect(OutOfBounds(QStringLiteral("AssegnaTabella")));
    desk.ReadAgain();
    TRY_SCRIPT(desk.script);
}

void NoSuchDayTest::statistics()
{
    QFETCH(QString, entry);
    QFETCH(QString, routine);
    StatisticsDesk desk;
    desk.Start();
    Module1::GiornoCorrente = kNoSuchDay;
    ExpectCommit(desk.script);
    desk.script.Expect(OutOfBounds(routine));
    desk.Choose(entry.toLatin1().constData());
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Lines(), QByteArrayList());
}

void NoSuchDayTest::listsOfTheSearch()
{
    QFETCH(QString, list);
    QFETCH(Categoria, category);
    SearchDesk desk;
    desk.StartSearch();
    Module1::GiornoCorrente = kNoSuchDay;
    desk.script.Expect(OutOfBounds(list));
    desk.ClickCategory(category);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk->lstStatistiche->ListCount(), 0);
}

void NoSuchDayTest::search()
{
    SearchDesk desk;
    desk.StartSearch();
    Module1::GiornoCorrente = kNoSuchDay;
    desk.script.Expect(OutOfBounds(QStringLiteral("Ricerca Medie")));
    desk.Run();
    TRY_SCRIPT(desk.script);
}

void NoSuchDayTest::timesOfAValue_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("routine");
    QTest::newRow("a text") << QByteArray("mnuPercorso") << QStringLiteral("ListaWOrdinata");
    QTest::newRow("a number") << QByteArray("mnuPeso") << QStringLiteral("ListavOrdinata");
}

void NoSuchDayTest::timesOfAValue()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, routine);
    StatisticsDesk desk;
    desk.Start();
    desk.Choose(entry.constData());
    Module1::GiornoCorrente = kNoSuchDay;
    desk.script.Expect(OutOfBounds(routine));
    desk.PressTimes();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Times(), QByteArrayList());
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::NoSuchDayTest)
#include "NoSuchDayTest.moc"
