// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's commands: its buttons and the pop-up of its rows.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "toolkit/Printer.h"
#include "toolkit/QtText.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/SaveTable.h"
#include "windows/plan/TableColours.h"
#include "windows/plan/TablePage.h"
#include "windows/plan/TableWindows.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

void frmAllenamento::AcceptAllRows()
{
    for (i16 riga = 1; riga <= kRows; riga += 1) {
        AssegnaTxt(riga);
        AssegnaTab(riga);
    }
}

void frmAllenamento::cmdOK_Click()
{
    Trap("cmdOK - ERRORE : ", [this] {
        if (TabellaModificata == 0) {
            TabellaModificata = ControllaSaveTab();
        }
        AcceptAllRows();
        if (!cmdDisattiva->isEnabled()) {
            cmdAttiva->setEnabled(true);
            cmdOK->setEnabled(false);
        }
    });
}

void frmAllenamento::cmdSalva_Click()
{
    Trap("cmdSalva - ERRORE : ", [this] {
        AcceptAllRows();
        if (IsActiveTable()) {
            PaintDate(TableColours::Active);
        }
        SaveUnderName();
        if (FlagTabellaSalvata == 1) {
            return;
        }
        TabellaModificata = 0;
        setWindowTitle(ToQString("Tabella allenamento : " + NomeSenzaCartella(tabCommonDialog.FileName)));
    });
}

void frmAllenamento::SaveUnderName()
{
    if (SalvaTabellaConNome(tabCommonDialog)) {
        percorsoSalvato_ = tabCommonDialog.FileName;
    } else if (FlagTabellaSalvata != 1) {
        // A file that may be half written must not be activated.
        percorsoSalvato_.clear();
    }
}

/// Makes sure that this window's table has a file, saving it if need be; false when none was written.
bool frmAllenamento::ChooseActivePath()
{
    if (!NomeFileForm.empty()) {
        return true;
    }
    if (percorsoSalvato_.empty()) {
        SaveUnderName();
    }
    NomeFileForm = percorsoSalvato_;
    return !NomeFileForm.empty();
}

TableSheetTexts frmAllenamento::SheetTexts() const
{
    TableSheetTexts testi{.data = DataCorrente, .titolo = FromQString(windowTitle()), .righe = {}, .dataInizio = {}};
    grid_.Visit([&](int column, int riga) {
        testi.righe[static_cast<std::size_t>(riga - 1)][static_cast<std::size_t>(column)] = Content(column, riga);
    });
    for (std::size_t i = 0; i < dateBoxes.size(); ++i) {
        testi.dataInizio[i] = dateBoxes[i]->Content();
    }
    return testi;
}

void frmAllenamento::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [this] { return TableSheet(SheetTexts()); });
}

void frmAllenamento::cmdAttiva_Click()
{
    Trap("cmdAttiva - ERRORE : ", [this] {
        if (ContaCampiData() < 3) {
            MsgBox(" INSERIRE ' DATA INIZIO ' ALLENAMENTO     ", MsgButtons::OK, MsgIcon::Exclamation);
            return;
        }
        const CalendarDate before = std::exchange(TabDataInizio, DateOfBoxes());
        if (!NomeTabellaAttiva.empty() && MsgBox(" DISATTIVARE LA TABELLA ATTUALMENTE ATTIVA, ED ATTIVARE QUESTA ?  ",
                                                 MsgButtons::OKCancel, MsgIcon::Information) == MsgAnswer::Cancel) {
            TabDataInizio = before;
            return;
        }
        if (!ChooseActivePath()) {
            TabDataInizio = before;
            return;
        }
        TabellaModificata = 0;
        NomeTabellaAttiva = NomeFileForm;
        SalvaNomeTabella();
        windows_.Page().SetActiveTableName(NomeSenzaCartella(NomeTabellaAttiva));
        IndiceTabella = 1;
        RecolourAllRows();
        cmdAttiva->setEnabled(false);
        cmdDisattiva->setEnabled(true);
        PaintDate(TableColours::Active);
    });
}

void frmAllenamento::cmdDisattiva_Click()
{
    Trap("cmdDisattiva - ERRORE : ", [this] {
        cmdAttiva->setEnabled(true);
        cmdDisattiva->setEnabled(false);
        PaintDate(TableColours::Accepted);
        IndiceTabella = 1;
        RecolourAllRows();
        NomeTabellaAttiva.clear();
        SalvaNomeTabella();
        windows_.Page().SetActiveTableName({});
    });
}

void frmAllenamento::mnuInserisciRiga_Click()
{
    Trap("mnuInserisciRiga - ERRORE : ", [this] {
        const i16 scelta = RigaSelezionata;
        for (i16 i = scelta; i <= kRows - 1; i += 1) {
            CopiaRiga(i + 1, i);
        }
        AzzeraRiga(scelta);
        for (i16 i = 1; i <= scelta - 1; i += 1) {
            AssegnaTab(i);
        }
        TabAssegnaTxt();
        RecolourAllRows();
        TabellaModificata = 1;
    });
}

void frmAllenamento::mnuEliminaRiga_Click()
{
    Trap("mnuEliminaRiga - ERRORE : ", [this] {
        const i16 scelta = RigaSelezionata;
        for (i16 i = 1; i <= scelta - 1; i += 1) {
            AssegnaTab(i);
        }
        for (i16 i = scelta; i <= kRows - 1; i += 1) {
            CopiaRiga(i, i + 1);
        }
        AzzeraRiga(kRows);
        TabAssegnaTxt();
        RecolourAllRows();
        TabellaModificata = 1;
    });
}

GruppiRiga frmAllenamento::Groups(int riga) const
{
    return {Content(Km, riga),           Content(Metri, riga),         Content(Ore, riga),
            Content(Minuti, riga),       Content(Secondi, riga),       Content(MediaMinuti, riga),
            Content(MediaSecondi, riga), Content(MediaMillesimi, riga)};
}

void frmAllenamento::cmdCalcoloMedie_Click()
{
    Trap("cmdCalcoloMedie - ERRORE : ", [this] {
        for (i16 riga = 1; riga <= kRows; riga += 1) {
            CalculateRow(riga);
        }
    });
}

void frmAllenamento::CalculateRow(i16 riga)
{
    const int row = riga.value();
    if (ChiedeMediaKm(Groups(row))) {
        CalcolaMediaKm(riga);
    }
    if (ChiedeTempo(Groups(row))) {
        CalcolaTempo(riga);
    }
    if (ChiedeDistanza(Groups(row))) {
        CalcolaDistanza(riga);
    }
    if (SoloUnGruppo(Groups(row))) {
        MsgBox("GIORNO " + PlainText(riga) + Text(" : IMMETTERE 2 VALORI PER CALCOLARNE IL 3°       "_t),
               MsgButtons::OK, MsgIcon::Exclamation);
    }
}

void frmAllenamento::CalcolaMediaKm(i16 riga)
{
    Trap("CalcolaMediaKm - ERRORE : ", [&] {
        const int row = riga.value();
        const auto media = MediaDi(Groups(row));
        if (!media) {
            MsgBox("GIORNO " + PlainText(riga) + ": OLTRE 60 MINUTI                 ", MsgButtons::OK,
                   MsgIcon::Exclamation);
            return;
        }
        Box(MediaMinuti, row)->SetContent(PlainText(media->minuti));
        Box(MediaSecondi, row)->SetContent(PlainText(media->secondi));
        Box(MediaMillesimi, row)->SetContent(media->millesimi);
    });
}

void frmAllenamento::CalcolaDistanza(i16 riga)
{
    Trap("CalcolaDistanza - ERRORE : ", [&] {
        const int row = riga.value();
        const DistanzaRiga distanza = DistanzaDi(Groups(row));
        Box(Km, row)->SetContent(PlainText(distanza.km));
        Box(Metri, row)->SetContent(PlainText(distanza.metri));
    });
}

void frmAllenamento::CalcolaTempo(i16 riga)
{
    Trap("CalcolaTempo - ERRORE : ", [&] {
        const int row = riga.value();
        const TempoRiga tempo = TempoDi(Groups(row));
        Box(Ore, row)->SetContent(PlainText(tempo.ore));
        Box(Minuti, row)->SetContent(PlainText(tempo.minuti));
        Box(Secondi, row)->SetContent(PlainText(tempo.secondi));
    });
}

} // namespace zelvia
