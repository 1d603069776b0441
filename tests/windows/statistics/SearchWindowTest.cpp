// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the searches, worked by mouse and keys on the sample year.
#include "diary/PlainSearch.h"
#include "support/SearchDesk.h"
#include "support/WindowTest.h"
#include "toolkit/PagePalette.h"

#include <QFontInfo>

namespace zelvia::test
{
namespace
{

std::vector<PlainDay> SampleDays(int last)
{
    const DiaryBytes diary(SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    std::vector<PlainDay> days;
    for (int slot = 1; slot <= last; ++slot) {
        days.push_back(PlainDayOf(diary, slot));
    }
    return days;
}

/// Days 1 to `last` hold a run of 10 km in 50 minutes each.
void PutRuns(int last)
{
    for (int day = 1; day <= 366; ++day) {
        RecordGiorno& giorno = Module1::Giorni[day];
        const CalendarDate date = giorno.Data;
        giorno = RecordGiorno();
        giorno.NumGiorno = day;
        giorno.Data = date;
        if (day <= last) {
            giorno.Km = 10;
            giorno.TempoImpiegato = "0:50:00";
            giorno.MediaKm = "5:00";
        }
    }
}

constexpr int kSlot = 140; // 20 May

} // namespace

class SearchWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensFromTheMenu();
    void whatIsOnThePageCounts();
    void aConditionTurnsOnAndOff();
    void eachCategoryOffersItsValues_data();
    void eachCategoryOffersItsValues();
    void enterChoosesAsADoubleClickDoes();
    void downGoesToTheValues();
    void deleteTakesAConditionAway();
    void threeConditionsAndAPeriod();
    void saysWhatToDoWhileItIsEmpty();
    void withoutConditions();
    void aConditionWithoutAValueHasNoEffect();
    void aCategoryGoesBackToChoosing();
    void unreadableTimesAreTold();
    void aListThatCannotBeCounted();
    void moreMinutesThanTheTotalHolds();
    void escLeavesAndAFreshOneComes();
    void itGoesWithThePage();
};

void SearchWindowTest::opensFromTheMenu()
{
    SearchDesk desk;
    desk.StartSearch();
    frmRicercheStatistiche& window = *desk.Search();
    QCOMPARE(window.windowTitle(), QStringLiteral("Ricerche Statistiche"));
    QVERIFY(!window.isModal());
    QVERIFY(window.width() <= 1366 && window.height() <= 740);
    const std::pair<const char*, const char*> captions[] = {
        {"cmdPercorso", "Percorso"},
        {"cmdLunghezza", "Lunghezza"},
        {"cmdKm", "Km"},
        {"cmdAndatura", "Andatura"},
        {"cmdFondo", "Terreno"},
        {"cmdTipo", "Tipo"},
        {"cmdStagione", "Stagione"},
        {"cmdMeteo", "Meteo"},
        {"cmdTemperatura", "Temperatura"},
        {"cmdCorridori", "Corridori"},
        {"cmdPeso", "Peso"},
        {"cmdRipetizioni", "Ripetizioni"},
        {"cmdPeriodo", "Periodo"},
        {"cmdAvvia", "Avvia"},
        {"cmGrafico", "Grafico"},
        {"cmdStampa", "Stampa"},
        {"cmdEsci", "Esci"},
        {"lblDalTit", "Dal"},
        {"lblAlTit", "Al"},
        {"lblDataInizio", "      -      -"},
        {"lblDataFine", "      -      -"},
        {"lblTitoliMedie", "      Km             Tempi          Media Km    "},
        {"lblTitoliMedie2", "  gg  mm  aaaa"},
        {"lblTotale", "TOTALI"},
        {"lblTotNum", " Corse"},
        {"lblTotKm", " Km"},
        {"lblTotTempi", " Tempi"},
        {"lblTotMedia", " Media"},
        {"lblBucoTot", ""},
    };
    for (const auto& [name, caption] : captions) {
        const auto* widget = window.findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(widget != nullptr, name);
        QCOMPARE(widget->property("text").toString(), QLatin1String(caption));
        QCOMPARE(widget->isVisible(), widget->objectName().startsWith(QLatin1String("cm")));
    }
    for (const char* name : {"lblPercorso", "lblFondo", "lblRipetizioni", "lblTitoliSta", "lstMedie", "txtGiornoInizio",
                             "txtAnnoFine", "lblTcorse", "lblTkm", "lblTtempi", "lblTmedia"}) {
        QVERIFY2(!window.findChild<QWidget*>(QLatin1String(name))->isVisible(), name);
    }
    for (const char* name : {"shp6", "shp7", "shp8", "lstStatistiche"}) {
        QVERIFY2(window.findChild<QWidget*>(QLatin1String(name))->isVisible(), name);
    }
    QVERIFY(QFontInfo(window.lstMedie->font()).fixedPitch());
    QCOMPARE(window.lstMedie->font().families().constFirst(), QStringLiteral("Courier"));
    for (const TextBox* box : window.periodBoxes) {
        QVERIFY(!box->accessibleName().isEmpty());
    }
    // A second command brings the same one.
    desk.Page().activateWindow();
    desk.OpenSearch();
    QCOMPARE(desk.Search(), &window);
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::whatIsOnThePageCounts()
{
    SearchDesk desk;
    desk.Start();
    PutRuns(0);
    desk.Page().upKM->SetValue(17);
    desk.OpenSearch();
    QVERIFY(Module1::Giorni[kSlot].Km == 17);
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QCOMPARE(desk->lstMedie->count(), 1);
    QVERIFY(desk.Totals().startsWith(" 1| 17|"));
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::aConditionTurnsOnAndOff()
{
    SearchDesk desk;
    desk.StartSearch();
    const Label& pace = desk.Condition(Categoria::Andatura);
    desk.ClickCategory(Categoria::Andatura);
    QTRY_VERIFY(pace.isVisible());
    QCOMPARE(pace.text(), QString());
    QVERIFY(desk->lblTitoliSta->isVisible());
    QCOMPARE(desk->lblTitoliSta->text(), QStringLiteral("Andatura"));
    QVERIFY(desk->lstStatistiche->count() > 1);
    desk.Choose(desk->lstStatistiche->item(1)->text());
    QTRY_COMPARE(pace.text(), desk->lstStatistiche->item(1)->text());

    // Another category takes the list and leaves the condition.
    desk.ClickCategory(Categoria::Fondo);
    QTRY_COMPARE(desk->lblTitoliSta->text(), QStringLiteral("Terreno"));
    QVERIFY(pace.isVisible() && !pace.text().isEmpty());

    desk.ClickCategory(Categoria::Andatura);
    QTRY_VERIFY(!pace.isVisible());
    QCOMPARE(pace.text(), QString());
    QVERIFY(!desk->lblTitoliSta->isVisible());
    QCOMPARE(desk->lstStatistiche->count(), 0);
    QVERIFY(desk.Condition(Categoria::Fondo).isVisible());
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::eachCategoryOffersItsValues_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("title");
    const char* const titles[] = {"Percorso", "Lunghezza", "Km",          "Andatura",  "Terreno", "Tipo",
                                  "Stagione", "Meteo",     "Temperatura", "Corridori", "Peso",    "Ripetizioni"};
    for (int i = 0; i < 12; ++i) {
        QTest::newRow(titles[i]) << i << QByteArray(titles[i]);
    }
}

void SearchWindowTest::eachCategoryOffersItsValues()
{
    QFETCH(int, category);
    QFETCH(QByteArray, title);
    SearchDesk desk;
    desk.StartSearch();
    desk.ClickCategory(static_cast<Categoria>(category));
    QTRY_COMPARE(desk->lblTitoliSta->text().toLatin1(), title);
    QByteArrayList values;
    for (const PlainRow& row : Ranked(title, SampleDays(kSlot))) {
        if (!IsNumeric(title) || row.value != "0") {
            values << row.value;
        }
    }
    QVERIFY(!values.isEmpty());
    QCOMPARE(SearchDesk::Entries(*desk->lstStatistiche), values);
    QCOMPARE(desk->CategoriaLista, Text(title.constData()));
    // The condition of the last value finds at least the day that it came from.
    desk.Choose(QString::fromLatin1(values.last()));
    QTRY_COMPARE(desk.Condition(static_cast<Categoria>(category)).text().toLatin1(), values.last());
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QVERIFY(!desk->lblTitoliSta->isVisible());
    PlainQuery query;
    query.values[title] = values.last();
    const PlainResult expected = Search(SampleDays(kSlot), query);
    QCOMPARE(SearchDesk::Entries(*desk->lstMedie), expected.lines);
    QCOMPARE(desk.Totals(), expected.totals);
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::enterChoosesAsADoubleClickDoes()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.ClickCategory(Categoria::Stagione);
    QTRY_VERIFY(desk->lstStatistiche->count() > 1);
    ListBox& list = *desk->lstStatistiche;
    hand::Click(*list.viewport(), list.visualItemRect(list.item(0)).center());
    QTRY_COMPARE(list.ListIndex(), 0);
    QCOMPARE(desk.Condition(Categoria::Stagione).text(), QString());
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(desk.Condition(Categoria::Stagione).text(), list.item(1)->text());
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::downGoesToTheValues()
{
    SearchDesk desk;
    desk.StartSearch();
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdPercorso"));
    // Of a condition that is off there are none to go to.
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdLunghezza"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(desk.Condition(Categoria::Lunghezza).isVisible());
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("lstStatistiche"));
    QCOMPARE(desk->lstStatistiche->ListIndex(), -1);
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(desk.Condition(Categoria::Lunghezza).text(), desk->lstStatistiche->item(0)->text());

    // The list holds another condition's values.
    desk.ClickCategory(Categoria::Km);
    QTRY_COMPARE(desk->lblTitoliSta->text(), QStringLiteral("Km"));
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdLunghezza"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdKm"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("lstStatistiche"));
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::deleteTakesAConditionAway()
{
    SearchDesk desk;
    desk.StartSearch();
    // Off, it stays off.
    hand::Key(Qt::Key_Delete);
    QVERIFY(StaysFalse([&] { return desk.Condition(Categoria::Percorso).isVisible(); }));
    hand::Key(Qt::Key_Space);
    QTRY_VERIFY(desk.Condition(Categoria::Percorso).isVisible());
    desk.Choose(desk->lstStatistiche->item(0)->text());
    QTRY_VERIFY(!desk.Condition(Categoria::Percorso).text().isEmpty());
    hand::Key(Qt::Key_Delete);
    QVERIFY(desk.Condition(Categoria::Percorso).isVisible());
    desk->ControlsFor(Categoria::Percorso).cmd->SetFocus();
    hand::Key(Qt::Key_Delete);
    QTRY_VERIFY(!desk.Condition(Categoria::Percorso).isVisible());
    QCOMPARE(desk.Condition(Categoria::Percorso).text(), QString());
    QVERIFY(!desk->lblTitoliSta->isVisible());
    QCOMPARE(desk->lstStatistiche->count(), 0);
    QCOMPARE(SearchDesk::Focused(), QByteArray("cmdPercorso"));
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::threeConditionsAndAPeriod()
{
    // Five days of the sample year fulfil the three conditions: 14 January, 11 February, 4 March, 14 and 28 October.
    SearchDesk desk(CalendarDate(2026, 12, 31));
    desk.StartSearch();
    desk.Demand(Categoria::Percorso, QStringLiteral("Pista dello stadio"));
    desk.Demand(Categoria::Andatura, QStringLiteral("Veloce"));
    desk.Demand(Categoria::Meteo, QStringLiteral("Nebbia"));
    desk.TypePeriod("11|2|2026|14|10|2026");
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QCOMPARE(SearchDesk::Entries(*desk->lstMedie), (QByteArrayList{"  8,0     0:40:55     5:06      11/02/2026 ",
                                                                   "  8,0     0:41:04     5:07      04/03/2026 ",
                                                                   "  8,0     0:40:03     5:00      14/10/2026 "}));
    // 2 hours 2 minutes 2 seconds; 913 seconds over three.
    QCOMPARE(desk.Totals(), QByteArray(" 3| 24| 2:02:02| 5:04"));
    QVERIFY(desk->findChild<QWidget*>(QStringLiteral("lblBucoTot"))->isVisible());
    QVERIFY(!desk->findChild<QWidget*>(QStringLiteral("shp7"))->isVisible());

    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    const ChartData& chart = desk.Charts()->MSChart1->Shown();
    QCOMPARE(chart.RowCount(), 3);
    QCOMPARE(chart.RowLabel(1), Text("5,06"));
    QCOMPARE(chart.RowLabel(2), Text("5,07"));
    QCOMPARE(chart.RowLabel(3), Text("5"));
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::saysWhatToDoWhileItIsEmpty()
{
    SearchDesk desk;
    desk.StartSearch();
    const auto* form = desk.Search()->findChild<QWidget*>(QStringLiteral("shp6"));
    const auto* other = desk.Search()->findChild<QWidget*>(QStringLiteral("shp8"));
    QCOMPARE(form->accessibleName(), QStringLiteral("Scegli una categoria, poi un valore con un doppio clic"));
    // Drawn in the print that can be read, which an empty form does not have.
    const auto written = [&](const QWidget& shape) {
        const QImage shown = desk.Search()->grab(shape.geometry()).toImage();
        int dark = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                dark += shown.pixelColor(x, y) == QColor(Ink::Faded) ? 1 : 0;
            }
        }
        return dark;
    };
    QVERIFY(form->isVisible());
    QVERIFY(written(*form) > 50);
    QCOMPARE(written(*other), 0);
    desk.Run();
    QTRY_VERIFY(!form->isVisible());
    QVERIFY(desk->lstMedie->isVisible());
    desk.ClickCategory(Categoria::Tipo);
    QTRY_VERIFY(form->isVisible());
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::withoutConditions()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    const PlainResult expected = Search(SampleDays(kSlot), {});
    QVERIFY(expected.lines.size() > 50);
    QCOMPARE(SearchDesk::Entries(*desk->lstMedie), expected.lines);
    QCOMPARE(desk.Totals(), expected.totals);
    // Once more: nothing is added up twice.
    desk.Run();
    QTRY_COMPARE(desk.Totals(), expected.totals);
    QCOMPARE(desk->lstMedie->count(), static_cast<int>(expected.lines.size()));
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::aConditionWithoutAValueHasNoEffect()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.ClickCategory(Categoria::Percorso);
    QTRY_VERIFY(desk.Condition(Categoria::Percorso).isVisible());
    desk.ClickCategory(Categoria::Corridori);
    QTRY_VERIFY(desk.Condition(Categoria::Corridori).isVisible());
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QCOMPARE(desk.Totals(), Search(SampleDays(kSlot), {}).totals);
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::aCategoryGoesBackToChoosing()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    desk.ClickCategory(Categoria::Peso);
    QTRY_VERIFY(!desk.ShowsResult());
    QCOMPARE(desk.Totals(), QByteArray("hidden|hidden|hidden|hidden"));
    QVERIFY(desk->findChild<QWidget*>(QStringLiteral("shp6"))->isVisible());
    QVERIFY(!desk->findChild<QWidget*>(QStringLiteral("lblTotale"))->isVisible());
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::unreadableTimesAreTold()
{
    SearchDesk desk;
    desk.StartSearch();
    PutRuns(3);
    Module1::Giorni[2].TempoImpiegato = "1:0000:59";
    Module1::Giorni[3].MediaKm = "1234:56";
    std::vector<int> listed; // while each of the boxes is up
    const auto note = [&] { listed.push_back(desk->lstMedie->count()); };
    desk.script.Expect(Report(QStringLiteral("Somma Tempi - ERRORE : 5 Argomento non valido")));
    desk.script.Meanwhile(note);
    desk.script.Expect(Report(QStringLiteral("Somma Media - ERRORE : 5 Argomento non valido")));
    desk.script.Meanwhile(note);
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QCOMPARE(listed, (std::vector<int>{1, 2}));
    // 600 seconds of average over three runs.
    QCOMPARE(desk.Totals(), QByteArray(" 3| 30| 1:40:00| 3:20"));
    QCOMPARE(desk->lstMedie->count(), 3);
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::aListThatCannotBeCounted()
{
    SearchDesk desk;
    desk.StartSearch();
    PutRuns(3);
    Module1::Giorni[2].Corridori = 40000;
    desk.script.Expect(Report(QStringLiteral("Lista Corridori - ERRORE : 6 Numero oltre i limiti")));
    desk.ClickCategory(Categoria::Corridori);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(desk.Condition(Categoria::Corridori).isVisible());
    QCOMPARE(desk->lstStatistiche->count(), 0);
    QVERIFY(!desk->lblTitoliSta->isVisible());
}

void SearchWindowTest::moreMinutesThanTheTotalHolds()
{
    SearchDesk desk;
    desk.StartSearch();
    Module1::AzzeraAnno();
    // 32,700 minutes and as many seconds, which are 545 minutes more: 33,245.
    for (int slot = 1; slot <= 100; ++slot) {
        Module1::Giorni[slot].Km = 1;
        Module1::Giorni[slot].TempoImpiegato = "0:327:327";
    }
    QByteArray shown; // while the box is up
    desk.script.Expect(Report(QStringLiteral("Tempi Totali - ERRORE : 6 Numero oltre i limiti")));
    desk.script.Meanwhile([&] { shown = desk.Totals(); });
    desk.Run();
    desk.AwaitBoxes();
    QVERIFY(desk.ShowsResult());
    QCOMPARE(shown, QByteArray(" 100| 100||"));
    // The seconds were carried over, 545 minutes of them; the minutes stay as they are.
    QCOMPARE(desk.Totals(), QByteArray(" 100| 100| 0:32700:00| 0:00"));
}

void SearchWindowTest::escLeavesAndAFreshOneComes()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.Demand(Categoria::Stagione, desk.Page().listFields[6].lblImmis->text().isEmpty()
                                         ? QStringLiteral("Inverno")
                                         : desk.Page().listFields[6].lblImmis->text());
    const QPointer<frmRicercheStatistiche> first = desk.Search();
    hand::Click(*desk->cmdEsci);
    QTRY_VERIFY(first.isNull());
    desk.Page().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.Page()));
    desk.OpenSearch();
    QVERIFY(!desk.Condition(Categoria::Stagione).isVisible());
    QCOMPARE(desk->lstStatistiche->count(), 0);
    VERIFY_SCRIPT(desk.script);
}

void SearchWindowTest::itGoesWithThePage()
{
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    const QPointer<frmRicercheStatistiche> search = desk.Search();
    const QPointer<frmGrafici> charts = desk.Charts();
    desk.Page().close();
    QTRY_VERIFY(search.isNull() && charts.isNull());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SearchWindowTest)
#include "SearchWindowTest.moc"
