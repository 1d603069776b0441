// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The menus, the dispatcher of commands, help and the window about the program.
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "toolkit/Menu.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia
{

void frmMain::BuildMenus(QMenuBar& bar)
{
    AddMenu(bar, "mnuFile", "&File",
            {{"mnuFileOpen", "&Apri", [this] { mnuFileOpen_Click(); }},
             {"mnuFileBar0", {}, {}},
             {"mnuFileNuovo", "&Nuovo", [this] { mnuFileNuovo_Click(); }},
             {"mnuFileBar2", {}, {}},
             {"mnuFileSave", "&Salva", [this] { mnuFileSave_Click(); }},
             {"mnuFileSaveAs", "Sal&va con nome", [this] { mnuFileSaveAs_Click(); }},
             {"mnuFileBar3", {}, {}},
             {"mnuFilePrint", "S&tampa", [this] { mnuFilePrint_Click(); }},
             {"mnuFileBar4", {}, {}},
             {"mnuFileExit", "&Esci", [this] { mnuFileExit_Click(); }}});
    AddMenu(bar, "mnuOpzioni", "&Opzioni",
            {{"mnuNote", "&Note", [this] { mnuNote_Click(); }},
             {"mnuAzzeraGiorno", "Az&zera Giorno", [this] { mnuAzzeraGiorno_Click(); }},
             {"mnuListaPrecedente", "Ripristina &Lista Precedente", [this] { mnuListaPrecedente_Click(); }},
             {"mnuListaIniziale", "Ripristina Lista &Iniziale", [this] { mnuListaIniziale_Click(); }}});
    AddMenu(bar, "mnuTabelle", "&Tabelle",
            {{"mnuAllenamenti", "&Allenamenti", [this] { mnuAllenamenti_Click(); }},
             {"mnuGare", "&Gare", [this] { mnuGare_Click(); }}});
    AddMenu(bar, "mnuStatistiche", "&Statistiche",
            {{"mnuMedie", "&Medie", [this] { mnuMedie_Click(); }},
             {"mnuStatBar", {}, {}},
             {"mnuPercorso", "Perc&orso", [this] { mnuPercorso_Click(); }},
             {"mnuLunghezza", "&Lunghezza", [this] { mnuLunghezza_Click(); }},
             {"mnuKm", "&Km", [this] { mnuKm_Click(); }},
             {"mnuAndatura", "&Andatura", [this] { mnuAndatura_Click(); }},
             {"mnuFondo", "Terre&no", [this] { mnuFondo_Click(); }},
             {"mnuTipo", "&Tipo", [this] { mnuTipo_Click(); }},
             {"mnuStagione", "Sta&gione", [this] { mnuStagione_Click(); }},
             {"mnuMeteo", "&Meteo", [this] { mnuMeteo_Click(); }},
             {"mnuTemperatura", "T&emperatura", [this] { mnuTemperatura_Click(); }},
             {"mnuCorridori", "&Corridori", [this] { mnuCorridori_Click(); }},
             {"mnuPeso", "Pe&so", [this] { mnuPeso_Click(); }},
             {"mnuRipetizioni", "&Ripetizioni", [this] { mnuRipetizioni_Click(); }}});
    AddMenu(bar, "mnuHelp", "&?",
            {{"mnuHelpContents", "&Sommario", [this] { mnuHelpContents_Click(); }, QKeySequence(Qt::Key_F1)},
             {"mnuHelpSearchForHelpOn", "&Cerca argomento", [this] { mnuHelpSearchForHelpOn_Click(); }},
             {"mnuHelpBar0", {}, {}},
             {"mnuHelpAbout", "&Informazioni su", [this] { mnuHelpAbout_Click(); }}});

    mnuCancelladallaLista->setObjectName(QStringLiteral("mnuCancelladallaLista"));
    mnuCancelladallaLista->setTitle(QStringLiteral("&Cancella dalla Lista"));
    const auto leaveNewRoute = [this] {
        if (NewRouteTyped()) {
            LeaveRouteBox();
        }
    };
    // The description takes the focus in any case, and the route's box must not close behind it.
    const auto leaveRoute = [this] { LeaveRouteBox(); };
    FillMenu(*mnuCancelladallaLista,
             {{"mnuCancella", "&Cancella", [this] { mnuCancella_Click(); }},
              {"mnuListaWOrdinata", "&Tempi", [this] { mnuListaWOrdinata_Click(); }, {}, leaveNewRoute},
              {"mnuDescrizionePercorso", "&Descrizione", [this] { mnuDescrizionePercorso_Click(); }, {}, leaveRoute}},
             MenuKind::PopUp);
}

void frmMain::DispatchCommand(TextView key)
{
    // The commands that are carried out by a window of their own join the table with it.
    static constexpr std::pair<TextView, void (frmMain::*)()> handlers[] = {
        {"Open", &frmMain::mnuFileOpen_Click},
        {"Nuovo", &frmMain::mnuFileNuovo_Click},
        {"Save", &frmMain::mnuFileSave_Click},
        {"Print", &frmMain::mnuFilePrint_Click},
        {"Help", &frmMain::mnuHelpContents_Click},
        {"Note", &frmMain::mnuNote_Click},
        {"Allenamenti", &frmMain::mnuAllenamenti_Click},
        {"Gare", &frmMain::mnuGare_Click},
        {"Medie", &frmMain::mnuMedie_Click},
        {"AzzeraGiorno", &frmMain::mnuAzzeraGiorno_Click},
        {"ListaPrecedente", &frmMain::mnuListaPrecedente_Click},
        {"ListaIniziale", &frmMain::mnuListaIniziale_Click},
        {"Percorso", &frmMain::mnuPercorso_Click},
        {"Lunghezza", &frmMain::mnuLunghezza_Click},
        {"Km", &frmMain::mnuKm_Click},
        {"Andatura", &frmMain::mnuAndatura_Click},
        {"Terreno", &frmMain::mnuFondo_Click},
        {"Tipo", &frmMain::mnuTipo_Click},
        {"Stagione", &frmMain::mnuStagione_Click},
        {"Meteo", &frmMain::mnuMeteo_Click},
        {"Temperatura", &frmMain::mnuTemperatura_Click},
        {"Corridori", &frmMain::mnuCorridori_Click},
        {"Peso", &frmMain::mnuPeso_Click},
        {"Ripetizioni", &frmMain::mnuRipetizioni_Click},
    };
    for (const auto& [name, handler] : handlers) {
        if (name == key) {
            (this->*handler)();
        }
    }
}

void frmMain::mnuAllenamenti_Click()
{
    Trap("mnuAllenamenti - ERRORE : ", [this] { tables_.CurrentList().ShowInFront(); });
}

void frmMain::mnuGare_Click()
{
    Trap("mnuGare - ERRORE : ", [this] { calendario_.Load().ShowInFront(); });
}

void frmMain::mnuHelpContents_Click()
{
    ShowHelp(HelpCommand::Contents);
}

void frmMain::mnuHelpSearchForHelpOn_Click()
{
    ShowHelp(HelpCommand::Search);
}

void frmMain::ShowHelp(int comando, const QString& argomento)
{
    if (FileGuida.empty()) {
        MsgBox(Messages::kNoGuide);
        return;
    }
    TrapWith([&] { guida_.WinHelp(FileGuida, comando, argomento); },
             [](const ErroreRunTime& error) { MsgBox(Messages::kGuideNotRead, error.Description()); });
}

void frmMain::mnuHelpAbout_Click()
{
    Trap("mnuHelpAbout - ERRORE : ", [this] { info_.Load().ShowInFront(); });
}

} // namespace zelvia
