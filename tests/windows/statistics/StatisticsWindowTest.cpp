// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the statistics and the commands that fill it.
#include "core/Conversions.h"
#include "support/Bytes.h"
#include "support/EntryPage.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QScrollBar>

namespace zelvia::test
{
namespace
{

QByteArray Line(const char* name, int count)
{
    return QByteArray(name).leftJustified(30) + QByteArray::number(count).rightJustified(6) + "    ";
}

struct Command {
    const char* entry;
    const char* key; ///< Of the dispatcher.
    const char* title;
    const char* value; ///< As the day written by WriteDay shows.
};

const Command kCommands[] = {
    {"mnuPercorso", "Percorso", "Percorso", "Voce 1"},
    {"mnuLunghezza", "Lunghezza", "Lunghezza", "Voce 2"},
    {"mnuAndatura", "Andatura", "Andatura", "Voce 3"},
    {"mnuFondo", "Terreno", "Terreno", "Voce 4"},
    {"mnuTipo", "Tipo", "Tipo", "Voce 5"},
    {"mnuStagione", "Stagione", "Stagione", "Voce 6"},
    {"mnuMeteo", "Meteo", "Meteo", "Voce 7"},
    {"mnuTemperatura", "Temperatura", "Temperatura", "Voce 8"},
    {"mnuKm", "Km", "Km", " 7,505"},
    {"mnuCorridori", "Corridori", "Corridori", " 3"},
    {"mnuPeso", "Peso", "Peso", " 70"},
    {"mnuRipetizioni", "Ripetizioni", "Ripetizioni", " 5 x 1000 @ 4:30"},
};

/// Puts a value into each control of the page; the record has none of them yet.
void WriteDay(frmMain& page)
{
    for (int number = 1; number <= 8; ++number) {
        page.listFields[number].lblImmis->SetCaption("Voce " + PlainText(i32(number)));
    }
    const std::pair<UpDown*, int> spins[] = {{page.upKM, 7},
                                             {page.upMetri, 500},
                                             {page.upMetro, 5},
                                             {page.upCorridori, 3},
                                             {page.upPeso, 70},
                                             {page.upRipetizioni, 5},
                                             {page.upRipetizioniDistanza, 1000},
                                             {page.upRipetizioniQuante, 4},
                                             {page.upRipetizioniTempi, 30}};
    for (const auto& [spin, value] : spins) {
        spin->SetValue(value);
    }
}

void AddCommands()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(kCommands); ++i) {
        QTest::newRow(kCommands[i].entry) << static_cast<int>(i);
    }
}

} // namespace

class StatisticsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsControls();
    void commandsCommitCountAndShow_data() { AddCommands(); }
    void commandsCommitCountAndShow();
    void dispatcher_data() { AddCommands(); }
    void dispatcher();
    void anOpenFieldIsClosedFirst();
    void daysAfterTheOneOnShow();
    void noDayCounts();
    void aSecondOneAddsBelow();
    void leavingStartsAnew();
    void tooManyRunners();
    void theChartIsAskedFor();
    void columnsLineUp();
    void theExitClosesIt();
};

void StatisticsWindowTest::itsControls()
{
    const DayPage page;
    const frmStatistiche1 window{ChartOpener()};
    QCOMPARE(window.objectName(), QStringLiteral("frmStatistiche1"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Statistiche"));
    QVERIFY(window.windowModality() == Qt::NonModal);
    QVERIFY(window.width() <= 1366 && window.height() <= 740);
    const std::pair<const char*, const char*> captions[] = {
        {"lblTitolo", "Statistica"}, {"cmdStatitolo", "descrizione"}, {"cmdStatfre", "frequenza"},
        {"cmdTempiLO", "Tempi"},     {"cmGrafico", "Grafico"},        {"cmdStampa", "Stampa"},
        {"cmdEsci", "Esci"}};
    for (const auto& [name, caption] : captions) {
        const auto* control = window.findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(control != nullptr, name);
        QCOMPARE(control->property("text").toString(), QLatin1String(caption));
        QVERIFY2(control->isEnabled() && control->isVisibleTo(&window), name);
    }
    for (const char* shape : {"shp1", "shp2", "shp3", "shp4", "shp5", "shp6", "shp7", "shp8", "shp9", "shpGrafico",
                              "shpEsci", "shpStampa"}) {
        QVERIFY2(window.findChild<QWidget*>(QLatin1String(shape)) != nullptr, shape);
    }
    QCOMPARE(window.lstStatistica->objectName(), QStringLiteral("lstStatistica"));
    QCOMPARE(window.lstStatistica->ListCount(), 0);
    const ListView& times = *window.lvListaOrdinata;
    QCOMPARE(times.objectName(), QStringLiteral("lvListaOrdinata"));
    QVERIFY(!times.isVisibleTo(&window));
    const std::pair<const char*, int> columns[] = {{"classifica", 106}, {"tempo", 141}, {"media", 106}, {"data", 141}};
    QCOMPARE(times.columnCount(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(times.headerItem()->text(i), QLatin1String(columns[i].first));
        // The last one reaches to the end of the view.
        QVERIFY(i == 3 ? times.columnWidth(i) >= columns[i].second : times.columnWidth(i) == columns[i].second);
    }
    // The times are over the list, and over nothing that acts.
    QVERIFY(times.geometry().contains(window.lstStatistica->geometry()));
    for (const Button* button : {window.cmdTempiLO, window.cmGrafico, window.cmdStampa, window.cmdEsci}) {
        QVERIFY(!times.geometry().intersects(button->geometry()));
    }
}

void StatisticsWindowTest::commandsCommitCountAndShow()
{
    QFETCH(int, row);
    const Command& command = kCommands[row];
    StatisticsDesk desk;
    desk.Start();
    WriteDay(desk.Page());
    QVERIFY(DayPage::Day().Km == 0);
    desk.Choose(command.entry);
    QVERIFY(DayPage::Day().Km == 7 && DayPage::Day().Tipo == "Voce 5");
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(Bytes(Module1::TitoloStatistica), QByteArray(command.title));
    QCOMPARE(desk.Window()->lblTitolo->text(), QLatin1String(command.title));
    QCOMPARE(desk.Lines(), QByteArrayList{Line(command.value, 1)});
    QCOMPARE(desk.Window()->lstStatistica->ListIndex(), -1);
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lstStatistica"));
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::dispatcher()
{
    QFETCH(int, row);
    StatisticsDesk desk;
    desk.Start();
    WriteDay(desk.Page());
    desk->DispatchCommand(kCommands[row].key);
    QTRY_VERIFY(desk.Window() != nullptr);
    QCOMPARE(desk.Window()->lblTitolo->text(), QLatin1String(kCommands[row].title));
    QCOMPARE(desk.Lines(), QByteArrayList{Line(kCommands[row].value, 1)});
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::anOpenFieldIsClosedFirst()
{
    constexpr int kind = 5;
    StatisticsDesk desk;
    desk.Start();
    ListControls& field = desk->listFields[kind];
    hand::Click(*field.lblImmis);
    QTRY_VERIFY(field.txt->hasFocus());
    hand::Type(QStringLiteral("gara"));
    desk.Choose("mnuTipo");
    QVERIFY(!field.txt->isVisible());
    QCOMPARE(desk.Lines(), QByteArrayList{Line("gara", 1)});
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::daysAfterTheOneOnShow()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(141, "Mare", "0:50:00", "5:00");
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines(), QByteArrayList{Line("Lago", 1)});
    desk.Leave();
    desk.GoTo(141);
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines(), (QByteArrayList{Line("Lago", 1), Line("Mare", 1)}));
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::noDayCounts()
{
    StatisticsDesk desk;
    desk.Start();
    desk.Choose("mnuCorridori");
    QCOMPARE(desk.Window()->lblTitolo->text(), QStringLiteral("Corridori"));
    QCOMPARE(desk.Lines(), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::aSecondOneAddsBelow()
{
    constexpr int routes = 40;
    StatisticsDesk desk;
    desk.Start();
    QByteArrayList lines;
    for (int slot = 1; slot <= routes; ++slot) {
        const QByteArray name = "R" + QByteArray::number(slot);
        StatisticsDesk::PutRun(slot, name.constData(), "0:50:00", "5:00");
        lines << Line(name.constData(), 1);
    }
    Module1::Giorni[9].Tipo = "Gara";
    Module1::Giorni[10].Tipo = "Gara";
    desk.Choose("mnuPercorso");
    const QPointer<frmStatistiche1> window = desk.Window();
    QCOMPARE(desk.Lines(), lines);
    desk.Choose("mnuTipo");
    QCOMPARE(desk.Window(), window.data());
    QCOMPARE(window->lblTitolo->text(), QStringLiteral("Tipo"));
    QCOMPARE(desk.Lines(), QByteArrayList(lines) << Line("Gara", 2));

    // The rows no longer belong to the slots: the first leads to the kind, the one of the kind to nothing.
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{"  1\xB0|0:50:00|5:00|10/01/2026", "  2\xB0|0:50:00|5:00|09/01/2026"}));
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!window->lvListaOrdinata->isVisible());

    // A row beyond the sixtieth has no slot at all.
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines().size(), 2 * routes + 1);
    desk.Select(60);
    desk.script.Expect(Report(QStringLiteral("ERRORE : 9 Indice oltre i limiti")));
    desk.PressTimes();
    TRY_SCRIPT(desk.script);
    QVERIFY(!window->lvListaOrdinata->isVisible());
    desk.OpenTimes(59);
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::leavingStartsAnew()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    desk.Choose("mnuPercorso");
    desk.Leave();
    QVERIFY(desk.Window() == nullptr);
    Module1::Giorni[2].Peso = 71;
    desk.Choose("mnuPeso");
    QCOMPARE(desk.Window()->lblTitolo->text(), QStringLiteral("Peso"));
    QCOMPARE(desk.Lines(), QByteArrayList{Line(" 71", 1)});
    // By the close box as well.
    const QPointer<frmStatistiche1> window = desk.Window();
    window->windowHandle()->close();
    QTRY_VERIFY(window.isNull());
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines(), QByteArrayList{Line("Lago", 1)});
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::tooManyRunners()
{
    StatisticsDesk desk;
    desk.Start();
    desk->upKM->SetValue(42);
    desk->upCorridori->SetValue(40000);
    desk.script.Expect(Report(QStringLiteral("StatisCorridori - ERRORE : 6 Numero oltre i limiti")));
    desk.Choose("mnuCorridori");
    // The routine has ended; the command goes on and shows what there is.
    QCOMPARE(desk.Window()->lblTitolo->text(), QStringLiteral("Statistica"));
    QCOMPARE(desk.Lines(), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::theChartIsAskedFor()
{
    const DayPage page;
    QByteArrayList asked;
    frmStatistiche1 window([&](const Text& title) { asked << Bytes(title); });
    window.show();
    window.activateWindow();
    EntryPage::AwaitFront(window);
    hand::Click(*window.cmGrafico);
    QTRY_COMPARE(asked, QByteArrayList{"Statistica"});
    window.SetTitle("Tipo");
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(asked, (QByteArrayList{"Statistica", "Tipo"}));
}

void StatisticsWindowTest::columnsLineUp()
{
    StatisticsDesk desk;
    desk.Start();
    for (int slot = 1; slot <= 120; ++slot) {
        StatisticsDesk::PutRun(slot,
                               slot == 1   ? "MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM"
                               : slot < 20 ? "iii"
                                           : "Citt\xE0",
                               "", "");
    }
    desk.Choose("mnuPercorso");
    const ListBox& list = *desk.Window()->lstStatistica;
    QCOMPARE(list.font().families().constFirst(), QStringLiteral("Courier"));
    QVERIFY(QFontInfo(list.font()).fixedPitch());
    QCOMPARE(list.ListCount(), 3);
    // The name takes 30 columns, and the count ends in column 36.
    const QByteArray blanks(30, ' ');
    QCOMPARE(desk.Lines(),
             (QByteArrayList{"Citt\xE0" + blanks.left(25) + "   101    ", "iii" + blanks.left(27) + "    18    ",
                             QByteArray(30, 'M') + "     1    "}));
    const QFontMetricsF metrics(list.font());
    const auto end = [&](int row, int column) {
        return metrics.horizontalAdvance(list.item(row)->text().left(column));
    };
    for (int row = 0; row < 3; ++row) {
        for (const int column : {30, 36, 40}) {
            QCOMPARE(end(row, column), end(0, column));
        }
    }
    // All 40 columns are in view.
    QVERIFY(list.visualItemRect(list.item(0)).left() + end(0, 40) <= list.viewport()->width());
    QCOMPARE(list.horizontalScrollBar()->maximum(), 0);
    VERIFY_SCRIPT(desk.script);
}

void StatisticsWindowTest::theExitClosesIt()
{
    StatisticsDesk desk;
    desk.Start();
    desk.Choose("mnuPercorso");
    const QPointer<frmStatistiche1> window = desk.Window();
    desk->close();
    QTRY_VERIFY(desk.Gone());
    QTRY_VERIFY(window.isNull());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::StatisticsWindowTest)
#include "StatisticsWindowTest.moc"
