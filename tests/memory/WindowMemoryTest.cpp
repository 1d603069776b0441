// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The windows beside the page when memory runs out: each routine reports under its own title.
#include "diary/CalendarModel.h"
#include "diary/RouteModel.h"
#include "memory/ScarceCommands.h"
#include "support/CalendarDesk.h"
#include "support/SearchDesk.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"
#include "toolkit/CommonDialog.h"

#include <QAction>

namespace zelvia::test
{
namespace
{

/// Longer than what a text holds without asking for memory.
const QString kLong = QStringLiteral("Giro lungo del fiume");

} // namespace

class WindowMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listOfTables();
    void editor_data();
    void editor();
    void pageOfRaces();
    void descriptionOfTooManyRoutes();
    void period();
    void chartOfThePace();
};

void WindowMemoryTest::listOfTables()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.Select(0);
    VerifyReports({{"cmdOk"}, [] {}, [&] { hand::Click(*desk.List()->cmdOK); }});
}

void WindowMemoryTest::editor_data()
{
    QTest::addColumn<QByteArray>("routine");
    for (const char* routine : {"ControllaSaveTab", "ControlloData", "cmdCalcoloMedie", "cmdAttiva", "cmdSalva"}) {
        QTest::newRow(routine) << QByteArray(routine);
    }
}

void WindowMemoryTest::editor()
{
    QFETCH(QByteArray, routine);
    TableDesk desk;
    desk.StartNew();
    SetFileDialogHandler([](const CommonDialog&, FileDialogMode) {
        return std::optional<Text>(Module1::CartellaDiario + "\\" + FromQString(kLong) + ".tab");
    });
    frmAllenamento& editor = *desk.Editor();
    const auto fill = [&] {
        editor.TabellaModificata = 0;
        editor.cmdOK->setEnabled(true);
        editor.cmdAttiva->setEnabled(true);
        editor.Box(TableGrid::Andatura, 1)->SetContent(FromQString(kLong));
        editor.Box(TableGrid::Km, 2)->SetContent("10");
    };
    const auto wrongDate = [&] {
        fill();
        editor.dateBoxes[0]->SetContent("31");
        editor.dateBoxes[1]->SetContent("4");
        editor.dateBoxes[2]->SetContent("2009");
    };
    const auto ofAFile = [&] {
        fill();
        editor.NomeFileForm = FromQString(kLong) + ".tab";
        Module1::NomeTabellaAttiva = editor.NomeFileForm;
    };
    const std::map<QByteArray, Command> commands = {
        {"ControllaSaveTab", {{routine}, fill, [&] { hand::Click(*editor.cmdOK); }}},
        {"ControlloData", {{routine}, wrongDate, [&] { hand::Click(*editor.cmdOK); }}},
        {"cmdCalcoloMedie", {{routine}, fill, [&] { hand::Click(*editor.cmdCalcoloMedie); }}},
        {"cmdAttiva", {{routine}, fill, [&] { hand::Click(*editor.cmdAttiva); }}},
        {"cmdSalva", {{routine}, ofAFile, [&] { hand::Click(*editor.cmdSalva); }}},
    };
    VerifyReports(commands.at(routine));
    SetFileDialogHandler({});
}

void WindowMemoryTest::pageOfRaces()
{
    CalendarDesk desk;
    desk.StartOpen();
    const auto prepare = [&] {
        desk.Window()->upPaginaGare->SetValue(0);
        Module1::Gara[21] = FromQString(kLong);
    };
    VerifyReports({{"VisualizzaCalendarioGare"}, prepare, [&] { desk.NextPage(); }});
}

void WindowMemoryTest::descriptionOfTooManyRoutes()
{
    EntryPage page;
    page.Start();
    const auto prepare = [&] {
        if (page.RouteWindow() != nullptr) {
            delete page.RouteWindow();
        }
        for (int place = 1; place <= 200; ++place) {
            Module1::NomiPercorso[place] = "R" + std::to_string(place);
        }
        Module1::PercorsoCorrente = FromQString(kLong);
    };
    VerifyReports(
        {{"VisualizzaListaPercorso"}, prepare, [&] {
             page->mnuCancelladallaLista->findChild<QAction*>(QStringLiteral("mnuDescrizionePercorso"))->trigger();
         }});
}

void WindowMemoryTest::period()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.TypePeriod("1|4|2026|30|4|2026");
    const auto prepare = [&] { desk->periodBoxes[PeriodBox::GiornoInizio]->SetContent("31"); };
    VerifyReports({{"Controllo Data"}, prepare, [&] { desk.Run(); }});
}

void WindowMemoryTest::chartOfThePace()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.Run();
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    const auto prepare = [&] { desk->activateWindow(); };
    VerifyReports({{"MostraGraficoMedia"}, prepare, [&] { hand::Click(*desk->cmGrafico); }});
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::WindowMemoryTest)
#include "WindowMemoryTest.moc"
