// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Open and New.
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/CalendarModel.h"
#include "diary/DiaryFile.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"
#include "windows/page/FrmMain.h"

#include <optional>
#include <utility>

namespace zelvia
{

using namespace Module1;

/// What a cancelled Open or New puts back.
struct frmMain::KeptState {
    i16 flagTabellaSalvata;
    Text nomeTabellaAperta;
    i16 ultimoPeso;
    i32 kmAnno;
    i16 giorniCorseAnno;
    i16 gareAnno;
    i16 noteAperte;
    i16 listaAperta;
    i16 fileModificato;
    i16 giornoCorrente;
    i16 giornoMese;
    i16 meseCorrente;
    i16 annoCorrente;
    Text nomeFile;
    Text nomeBaseFile;
    Text nomeTabellaAttiva;
    Text percorsoCorrente;
    Text esitoDir;
    Text cartellaDiario;
    i16 indiceTabella;
};

/// Keeps the state and resets it as at start; UltimoPeso and KmAnno stay.
frmMain::KeptState frmMain::KeepAndReset()
{
    return {std::exchange(FlagTabellaSalvata, 0),
            std::exchange(NomeTabellaAperta, {}),
            UltimoPeso,
            KmAnno,
            std::exchange(GiorniCorseAnno, 0),
            std::exchange(GareAnno, 0),
            std::exchange(NoteAperte, 0),
            std::exchange(ListaAperta, 0),
            std::exchange(FileModificato, 0),
            std::exchange(GiornoCorrente, 0),
            std::exchange(GiornoMese, 1),
            std::exchange(MeseCorrente, 1),
            std::exchange(AnnoCorrente, 1),
            std::exchange(NomeFile, {}),
            std::exchange(NomeBaseFile, {}),
            std::exchange(NomeTabellaAttiva, {}),
            std::exchange(PercorsoCorrente, {}),
            std::exchange(EsitoDir, {}),
            std::exchange(CartellaDiario, {}),
            std::exchange(IndiceTabella, 0)};
}

void frmMain::PutBack(const KeptState& kept)
{
    FlagTabellaSalvata = kept.flagTabellaSalvata;
    NomeTabellaAperta = kept.nomeTabellaAperta;
    UltimoPeso = kept.ultimoPeso;
    KmAnno = kept.kmAnno;
    GiorniCorseAnno = kept.giorniCorseAnno;
    GareAnno = kept.gareAnno;
    NoteAperte = kept.noteAperte;
    ListaAperta = kept.listaAperta;
    FileModificato = kept.fileModificato;
    GiornoCorrente = kept.giornoCorrente;
    GiornoMese = kept.giornoMese;
    MeseCorrente = kept.meseCorrente;
    AnnoCorrente = kept.annoCorrente;
    NomeFile = kept.nomeFile;
    NomeBaseFile = kept.nomeBaseFile;
    NomeTabellaAttiva = kept.nomeTabellaAttiva;
    PercorsoCorrente = kept.percorsoCorrente;
    EsitoDir = kept.esitoDir;
    CartellaDiario = kept.cartellaDiario;
    IndiceTabella = kept.indiceTabella;
}

bool frmMain::CalendarStays()
{
    return calendario_.Loaded() && calendario_.Load().QueryUnload();
}

void frmMain::ShowOtherDiary()
{
    if (calendario_.Loaded()) {
        calendario_.Load().ShowOtherDiary();
    }
    tables_.ShowOtherDiary();
}

void frmMain::mnuFileOpen_Click()
{
    Trap("mnuFileOpen - ERRORE : ", [this] {
        if (!CalendarStays()) {
            OpenDiary();
        }
    });
}

void frmMain::OpenDiary()
{
    std::optional<KeptState> kept;
    bool riprova = false;
    bool aperto = false;
    TrapWith(
        [&] {
            i16 annullato;
            ChiediSalvataggio(annullato);
            if (annullato == 1) {
                return;
            }
            kept = KeepAndReset();
            PrepareDialog("Apri", FileDialogMode::Open, kept->nomeFile);
            dlgCommonDialog.ShowOpen();
            ApplyFolderRule(FileDialogMode::Open, kept->nomeFile, riprova);
            NomeFile = dlgCommonDialog.FileName;
            aperto = true;
            ReadOpenedDiary();
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError("mnuFileOpen - ERRORE : ", error);
                return;
            }
            if (kept) {
                PutBack(*kept);
            }
            if (riprova) {
                OpenDiary();
            }
        });
    // Also when reading it has failed half-way: what the other windows hold must not be saved there.
    if (aperto) {
        ShowOtherDiary();
    }
}

void frmMain::ReadOpenedDiary()
{
    CaricaDiario(NomeFile);
    AzzeraPercorsi();
    AzzeraCalendario();
    SetToday();
    Data();
    CartellaDiario = CAPTIONDIR(NomeFile);
    WriteFirstSet();
    VisualizzaGiorno();
    DatiAnno();
    NomeFleListe();
    lblNomeFile->SetCaption(NomeBaseFile);
    NessunaTabella();
    CaricaNomeTabella();
    lblTabNomeFile->SetCaption(NomeSenzaCartella(NomeTabellaAttiva));
    if (!NomeTabellaAttiva.empty()) {
        ShowActiveTable();
    }
    CaricaListe();
    CaricaPercorsi();
    AzzeraCalendario();
    LeggiCalendario();
    AssegnaGara();
}

void frmMain::mnuFileNuovo_Click()
{
    Trap("mnuFileNuovo - ERRORE : ", [this] {
        if (CalendarStays()) {
            return;
        }
        i16 annullato;
        ChiediSalvataggio(annullato);
        if (annullato == 1) {
            return;
        }
        const KeptState kept = KeepAndReset();
        DataMinima = CalendarDate(2001, 1, 1);
        DataMassima = CalendarDate(2099, 12, 31);
        NuovoFile(kept.nomeFile);
        if (NuovoAnnullato == 1) {
            PutBack(kept);
            lblNomeFile->SetCaption(NomeBaseFile);
            // A cancelled dialog leaves no name, and the next save asks for one. A name that was chosen in vain gives
            // way to the old diary, over which the next save then writes.
            if (!dlgCommonDialog.FileName.empty()) {
                dlgCommonDialog.FileName = NomeFile;
            }
            return;
        }
        AzzeraPercorsi();
        AzzeraCalendario();
        SetToday();
        Data();
        NessunaTabella();
        lblTabNomeFile->SetCaption(NomeSenzaCartella(NomeTabellaAttiva));
        InizializzaListe();
        AzzeraCampi();
        VisualizzaGiorno();
        DatiAnno();
        ShowOtherDiary();
    });
}

void frmMain::NuovoFile(const Text& percorso)
{
    SalvaFileNuovo(percorso);
}

void frmMain::SalvaFileNuovo(const Text& percorso)
{
    bool riprova = false;
    TrapWith(
        [&] {
            PrepareDialog("Nuovo file", FileDialogMode::Save, percorso);
            dlgCommonDialog.FileName.clear();
            dlgCommonDialog.ShowSave();
            ApplyFolderRule(FileDialogMode::Save, percorso, riprova);
            NomeFile = dlgCommonDialog.FileName;
            AzzeraAnno();
            setCursor(Qt::WaitCursor);
            FileModificato = 0;
            NomeFleListe();
            lblNomeFile->SetCaption(NomeBaseFile);
            CartellaDiario = CAPTIONDIR(NomeFile);
            EsitoDir = FindFolder(CartellaDiario);
            unsetCursor();
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError("SalvaFileNuovo - ERRORE : ", error);
                return;
            }
            NuovoAnnullato = 1;
            if (riprova) {
                SalvaFileNuovo(percorso);
            }
        });
}

} // namespace zelvia
