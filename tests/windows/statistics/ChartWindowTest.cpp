// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the charts, opened from the searches and from a statistic counted before.
#include "support/Bytes.h"
#include "support/SearchDesk.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

#include <QClipboard>
#include <QImage>

namespace zelvia::test
{
namespace
{

/// A page that opens charts as the window of a statistic does.
class ChartDesk : public SearchDesk
{
public:
    ~ChartDesk() { Module1::ClearStatistic(); }

    void Bars(Categoria category)
    {
        Module1::CountValues(StatisticOf(category));
        MostraGrafico(slot_, StatisticOf(category).title);
        QTRY_VERIFY(Charts() != nullptr);
        AwaitFront(*Charts());
    }

private:
    FormSlot<frmGrafici> slot_;
};

frmGrafici* Charts()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<frmGrafici*>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

class ChartWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beforeAnySearch();
    void theLineOfASearch();
    void itIsReplacedInPlace();
    void barsOfAStatistic();
    void theStatisticsWindowOpensThem();
    void aStatisticWithoutValues();
    void anErrorIsTold();
    void itGrowsWithItsWindow();
    void copies();
    void onlyTheFirst350Runs();
};

void ChartWindowTest::beforeAnySearch()
{
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    frmGrafici& window = *desk.Charts();
    QCOMPARE(window.windowTitle(), QStringLiteral("Grafici"));
    QVERIFY(!window.isModal());
    QVERIFY(window.width() <= 1366 && window.height() <= 740);
    QCOMPARE(window.cmdStampa->text(), QStringLiteral("Stampa"));
    QCOMPARE(window.cmdEsci->text(), QStringLiteral("Esci"));
    QCOMPARE(window.MSChart1->objectName(), QStringLiteral("MSChart1"));
    QVERIFY(window.MSChart1->Shown().chartType == ChartType::Line);
    QCOMPARE(window.MSChart1->Shown().RowCount(), 0);
    QCOMPARE(window.MSChart1->accessibleName(), QStringLiteral("Velocità Media per Km"));
    QCOMPARE(window.MSChart1->accessibleDescription(), QStringLiteral("Nessun valore"));
    const QPointer<frmGrafici> watched = &window;
    SearchDesk::AwaitFront(window);
    hand::Click(*window.cmdEsci);
    QTRY_VERIFY(watched.isNull());
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::theLineOfASearch()
{
    SearchDesk desk;
    desk.StartSearch();
    const char* const paces[] = {"5:07", "", "6:00", "5:30"};
    for (int day = 1; day <= 366; ++day) {
        RecordGiorno& giorno = Module1::Giorni[day];
        giorno.Km = day <= 4 ? 10 : 0;
        giorno.Metri = 0;
        giorno.TempoImpiegato.clear();
        giorno.MediaKm = day <= 4 ? paces[day - 1] : "";
    }
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    // The run without a pace is there as 0 and the last one is missing.
    QCOMPARE(desk.Charts()->MSChart1->accessibleDescription(), QStringLiteral("Tempo: 5,07; 0; 6"));
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::itIsReplacedInPlace()
{
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    const frmGrafici* first = desk.Charts();
    QCOMPARE(first->MSChart1->Shown().RowCount(), 0);
    SearchDesk::AwaitFront(*desk.Charts());
    desk->raise();
    SearchDesk::AwaitFront(*desk.Search());
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(first->MSChart1->Shown().RowCount() > 50);
    QCOMPARE(desk.Charts(), first);
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::barsOfAStatistic()
{
    ChartDesk desk;
    desk.Start();
    for (int day = 1; day <= 366; ++day) {
        Module1::Giorni[day].Fondo = day % 7 == 0 ? "Pista" : day % 2 == 0 ? "Strada" : "";
    }
    // Up to day 140: 20 days are multiples of 7, 10 of them even.
    desk.Bars(Categoria::Fondo);
    const Chart& chart = *desk.Charts()->MSChart1;
    QVERIFY(chart.Shown().chartType == ChartType::Bars);
    QCOMPARE(chart.accessibleName(), QStringLiteral("Terreno"));
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("Strada: 60; Pista: 20"));
    const frmGrafici* first = desk.Charts();
    desk.Bars(Categoria::Tipo);
    QCOMPARE(desk.Charts(), first);
    QCOMPARE(chart.accessibleName(), QStringLiteral("Tipo"));
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::theStatisticsWindowOpensThem()
{
    // Either window closes after the other.
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(3, "Lungofiume", "0:50:00", "5:00");
    StatisticsDesk::PutRun(5, "Parco", "0:51:00", "5:06");
    StatisticsDesk::PutRun(9, "Lungofiume", "0:52:00", "5:12");
    desk.Choose("mnuPercorso");
    hand::Click(*desk.Window()->cmGrafico);
    QPointer<frmGrafici> charts;
    QTRY_VERIFY(!(charts = Charts()).isNull());
    QCOMPARE(charts->MSChart1->accessibleName(), QStringLiteral("Percorso"));
    QCOMPARE(charts->MSChart1->accessibleDescription(), QStringLiteral("Lungofiume: 2; Parco: 1"));
    SearchDesk::AwaitFront(*charts);
    hand::Click(*charts->cmdEsci);
    QTRY_VERIFY(charts.isNull());
    desk.Window()->raise();
    SearchDesk::AwaitFront(*desk.Window());
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::aStatisticWithoutValues()
{
    ChartDesk desk;
    desk.Start();
    for (int day = 1; day <= 366; ++day) {
        Module1::Giorni[day].Temperatura.clear();
    }
    desk.Bars(Categoria::Temperatura);
    QCOMPARE(desk.Charts()->MSChart1->Shown().ColumnCount(), 0);
    QCOMPARE(Bytes(desk.Charts()->MSChart1->Shown().TitleText), QByteArray("Temperatura"));
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::anErrorIsTold()
{
    ChartDesk desk;
    desk.Start();
    desk.Bars(Categoria::Percorso);
    const frmGrafici& first = *desk.Charts();
    const ChartData before = first.MSChart1->Shown();
    QVERIFY(before.ColumnCount() > 1);
    Module1::ContaCategoria[1] = 0;
    desk.script.Expect(Report(QStringLiteral("MostraGrafico - ERRORE : 9 Indice oltre i limiti")));
    FormSlot<frmGrafici> other;
    MostraGrafico(other, "Percorso");
    VERIFY_SCRIPT(desk.script);
    QVERIFY(other.Loaded());
    QVERIFY(other.Load().isVisible());
    QCOMPARE(other.Load().MSChart1->Shown().ColumnCount(), 0);
    QVERIFY(first.MSChart1->Shown() == before);
    other.Unload();
}

void ChartWindowTest::itGrowsWithItsWindow()
{
    ChartDesk desk;
    desk.Start();
    desk.Bars(Categoria::Percorso);
    frmGrafici& window = *desk.Charts();
    const QSize before = window.MSChart1->size();
    window.resize(window.width() + 100, window.height() + 50);
    QTRY_COMPARE(window.MSChart1->size(), before + QSize(100, 50));
    QVERIFY(window.rect().contains(window.cmdEsci->geometry()));
    QVERIFY(!window.MSChart1->geometry().intersects(window.cmdEsci->geometry()));
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::copies()
{
    ChartDesk desk;
    desk.Start();
    desk.Bars(Categoria::Percorso);
    const Chart& chart = *desk.Charts()->MSChart1;
    chart.EditCopy(chart.size());
    const QImage picture = QGuiApplication::clipboard()->image();
    QCOMPARE(picture.size(), chart.size() * 2);
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
    // As many inches as the chart has on a screen of 96 dots.
    QVERIFY(std::abs(picture.dotsPerMeterX() * 0.0254 - 192) < 0.5);
    int inked = 0;
    for (int x = 0; x < picture.width(); ++x) {
        inked += picture.pixelColor(x, picture.height() / 2) == QColor(Qt::white) ? 0 : 1;
    }
    QVERIFY(inked > picture.width() / 2);
    QGuiApplication::clipboard()->clear();
    VERIFY_SCRIPT(desk.script);
}

void ChartWindowTest::onlyTheFirst350Runs()
{
    SearchDesk desk(CalendarDate(2028, 12, 31));
    desk.Start();
    for (int day = 1; day <= 366; ++day) {
        RecordGiorno& giorno = Module1::Giorni[day];
        giorno.Km = 10;
        giorno.TempoImpiegato = "0:50:00";
        giorno.MediaKm = day <= 350 ? "5:00" : "6:30";
    }
    desk.Page().VisualizzaGiorno();
    desk.OpenSearch();
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    QVERIFY(desk->totals.NumCorse == 366);
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    QCOMPARE(desk.Charts()->MSChart1->Shown().RowCount(), 350);
    SearchDesk::AwaitFront(*desk.Charts());
    desk->raise();
    SearchDesk::AwaitFront(*desk.Search());
    desk.TypePeriod("||||1|2026");
    desk.script.Expect({QStringLiteral("DATA FINE  MIN GIORNO 1                 "), QMessageBox::Warning});
    desk.Run();
    desk.AwaitBoxes();
    QTRY_COMPARE(desk->lstMedie->count(), 1);
    QCOMPARE(desk->totals.Medie[350], 0.0F);
    QCOMPARE(desk->totals.Medie[351], 6.3F);
    hand::Click(*desk->cmGrafico);
    QTRY_COMPARE(desk.Charts()->MSChart1->Shown().RowCount(), 1);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ChartWindowTest)
#include "ChartWindowTest.moc"
