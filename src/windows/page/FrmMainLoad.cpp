// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The start and the stop of the program, and what the start reads.
#include "core/Conversions.h"
#include "core/Files.h"
#include "diary/CalendarModel.h"
#include "diary/DiaryFile.h"
#include "diary/RouteModel.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "toolkit/QtText.h"
#include "windows/page/CampoLista.h"
#include "windows/page/FrmMain.h"
#include "windows/page/GruppoSpin.h"
#include "windows/page/PageArt.h"

#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr TextView kStartPointer = "\\nomeload";
constexpr TextView kDefaultDiary = "\\ZelviaFile\\prova.zlv";
constexpr int kTickMilliseconds = 500;

void BringToFront(QWidget* window)
{
    if (window != nullptr && window->isVisible()) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

} // namespace

frmMain::frmMain()
    : Form(QStringLiteral("frmMain")), tmrFocus(new Timer(this, QStringLiteral("tmrFocus"), kTickMilliseconds)),
      mnuCancelladallaLista(new QMenu(this)), tables_(*this)
{
    setWindowTitle(QStringLiteral("Zelvia"));
    auto* bar = new QMenuBar(this);
    auto* page = new PaperSheet(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(bar);
    layout->addWidget(page);
    BuildPage(*this, page);
    BuildMenus(*bar);
    ConnectControls();
    ConnectSpins();
    ConnectLists();
    ConnectGroups();
    ConnectSplits();
    ConnectNotes();
    Application::Instance().HelpKey = [this](const QString& window) { ShowHelp(HelpCommand::Topic, window); };
    Application::Instance().ShowAgain = [this] {
        BringToFront(this);
        // A box over the page, or over another window, stays in front.
        BringToFront(QApplication::activeModalWidget());
    };
}

frmMain::~frmMain()
{
    Application::Instance().HelpKey = {};
    Application::Instance().ShowAgain = {};
}

bool frmMain::FormLoad()
{
    if (!Application::Instance().TakeInstanceLock()) {
        return false;
    }
    const Routine routine;
    Trap("Load - ERRORE : ", [this] {
        FileGuida = ProgramFolder() + "\\Guida.hlp";
        AzzeraAnno();
        AzzeraPercorsi();
        AzzeraCalendario();
        ResetState();
        SetToday();
        Data();
        CaricaNomeFile();
        CaricaDiario(NomeFile);
        NomeFleListe();
        lblNomeFile->SetCaption(NomeBaseFile);
        SetUpFolder();
        InizializzaListe();
        VisualizzaGiorno();
        DatiAnno();
        LoadCompanions();
    });
    return true;
}

void frmMain::ResetState()
{
    AzzeraStato();
    DataMinima = CalendarDate(2001, 1, 1);
    DataMassima = CalendarDate(2099, 12, 31);
    GiornoMese = MeseCorrente = AnnoCorrente = 1;
    UltimoPeso = 0;
    KmAnno = 0;
    GiorniCorseAnno = GareAnno = 0;
    NomeFile.clear();
    NomeBaseFile.clear();
    EsitoDir.clear();
    NuovoAnnullato = 0;
    NoteAperte = ListaAperta = LunghezzaNota = 0;
}

void frmMain::CaricaNomeFile()
{
    TrapWith(
        [this] {
            NomeFile = ReadPointer(ProgramFolder() + Text(kStartPointer));
            if (NomeFile.empty()) {
                NomeFile = ProgramFolder() + Text(kDefaultDiary);
            }
            dlgCommonDialog.FileName = NomeFile;
        },
        [this](const ErroreRunTime& error) {
            if (error.Number() == Errore::FileNonTrovato) {
                NuovoFile(NomeFile);
            } else {
                ReportError("CaricaNomeFile - ERRORE : ", error);
            }
        });
}

void frmMain::SalvaNomeFile()
{
    Trap("SalvaNomeFile - ERRORE : ", [this] { WritePointer(ProgramFolder() + Text(kStartPointer), NomeFile); });
}

void frmMain::NomeFleListe()
{
    Trap("NomeFleListe - ERRORE : ", [this] {
        const auto slash = InStrRev(NomeFile, "\\");
        if (slash > 0 && InStr(Mid(NomeFile, slash + 1), ".") > 0) {
            NomeBaseFile = NomeSenzaCartella(NomeFile);
        }
    });
}

void frmMain::SetUpFolder()
{
    CartellaDiario = CAPTIONDIR(NomeFile);
    EsitoDir = FindFolder(CartellaDiario);
    // Without a folder's name there is nothing to make; the writes and reads that follow report.
    if (EsitoDir.empty() && !CartellaDiario.empty()) {
        MakeFolder(CartellaDiario);
    }
    WriteFirstSet();
}

void frmMain::WriteFirstSet()
{
    if (!FilesIn(CartellaDiario).empty()) {
        return;
    }
    SalvaPercorsi();
    ScriviCalendario();
    SalvaNomeTabella();
    InizializzaListe();
    SalvaListe();
}

void frmMain::LoadCompanions()
{
    CaricaListe();
    CaricaNomeTabella();
    if (!NomeTabellaAttiva.empty()) {
        ShowActiveTable();
    }
    CaricaPercorsi();
    AzzeraCalendario();
    LeggiCalendario();
    AssegnaGara();
}

void frmMain::mnuFileExit_Click()
{
    Unload();
}

void frmMain::OnUnload()
{
    tables_.UnloadEditor();
    tables_.UnloadList();
    desPercorso_.Unload();
    calendario_.Unload();
    statistiche_.Unload();
    grafici_.Unload();
    ricerche_.Unload();
    info_.Unload();
    guida_.Close();
}

} // namespace zelvia
