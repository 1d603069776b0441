// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's data: boxes and columns, colours, commands.
#include "tables/FrmAllenamento.h"

#include "core/Conversions.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "core/Workspace.h"
#include "tables/TableColours.h"
#include "tables/TableModel.h"
#include "tables/TablePage.h"
#include "tables/TableWindows.h"
#include "tables/TextRoutines.h"
#include "toolkit/QtText.h"

#include <algorithm>
#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

namespace
{

struct NumberColumn {
    Column column;
    ColonnaTabella<i16>* values;
    TextView pattern; ///< Empty for plain digits.
};

const NumberColumn kNumbers[] = {
    {Km, &TabKm, {}},
    {Metri, &TabMetri, "000"},
    {Ore, &TabOre, {}},
    {Minuti, &TabMinuti, "00"},
    {Secondi, &TabSecondi, "00"},
    {MediaMinuti, &TabMediaMinuti, {}},
    {MediaSecondi, &TabMediaSecondi, "00"},
    {MediaMillesimi, &TabMediaMillesimi, "000"},
    {RipetVolte, &TabRipetVolte, {}},
    {RipetDistanza, &TabRipetDistanza, {}},
    {RipetQuante, &TabRipetQuante, {}},
    {RipetTempi, &TabRipetTempi, "00"},
};

struct TextColumn {
    Column column;
    ColonnaTabella<Text>* values;
};

const TextColumn kTexts[] = {{Andatura, &TabAndatura}, {Fondo, &TabFondo}};

const CalendarDate kNoStartDate(2000, 1, 1);

} // namespace

void frmAllenamento::Load()
{
    Trap("Load - ERRORE : ", [this] {
        TabellaModificata = 0;
        NomeFileForm.clear();
        RigaSelezionata = 0;
        AzzeraTabella();
        if (NomeTabellaAperta.empty()) {
            return;
        }
        LeggiTabella(NomeTabellaAperta);
        TabAssegnaTxt();
        if (SameText(NomeTabellaAperta, NomeTabellaAttiva)) {
            cmdAttiva->setEnabled(false);
            cmdDisattiva->setEnabled(true);
            cmdOK->setEnabled(false);
            PaintDate(TableColours::Active);
        }
        NomeFileForm = NomeTabellaAperta;
        tabCommonDialog.FileName = NomeTabellaAperta;
        NomeTabellaAperta.clear();
        RecolourAllRows();
    });
}

void frmAllenamento::OnUnload()
{
    Trap(kBareTitle, [this] {
        windows_.List().RefreshList();
        windows_.List().SelectActive();
        windows_.Page().RequestTableReading();
    });
}

Text frmAllenamento::Content(Column column, int riga) const
{
    return Box(column, riga)->Content();
}

i16 frmAllenamento::Number(Column column, int riga) const
{
    const Text testo = Content(column, riga);
    return RoundTo<i16>(Val(column == RipetDistanza ? SenzaPuntoMigliaia(testo) : testo));
}

int frmAllenamento::DateNumber(std::size_t index) const
{
    return RoundTo<i16>(Val(dateBoxes[index]->Content())).value();
}

CalendarDate frmAllenamento::DateOfBoxes() const
{
    return DateValue(dateBoxes[0]->Content() + "/" + dateBoxes[1]->Content() + "/" + dateBoxes[2]->Content());
}

void frmAllenamento::AssignColumns(i16 destinazione, i16 sorgente, bool dotIsThousands)
{
    const int row = sorgente.value();
    for (const NumberColumn& colonna : kNumbers) {
        (*colonna.values)[destinazione] =
            dotIsThousands ? Number(colonna.column, row) : RoundTo<i16>(Val(Content(colonna.column, row)));
    }
    for (const TextColumn& colonna : kTexts) {
        (*colonna.values)[destinazione] = Content(colonna.column, row);
    }
}

void frmAllenamento::AssegnaTab(i16 riga)
{
    Trap("AssegnaTab - ERRORE : ", [&] {
        AssignColumns(riga, riga, true);
        if (ContaCampiData() == 3) {
            TabDataInizio = DateOfBoxes();
        }
    });
}

void frmAllenamento::CopiaRiga(i16 destinazione, i16 sorgente)
{
    AssignColumns(destinazione, sorgente, false);
}

void frmAllenamento::AzzeraRiga(i16 riga)
{
    for (const NumberColumn& colonna : kNumbers) {
        (*colonna.values)[riga] = 0;
    }
    for (const TextColumn& colonna : kTexts) {
        (*colonna.values)[riga].clear();
    }
}

void frmAllenamento::ShowRow(int riga)
{
    for (const NumberColumn& colonna : kNumbers) {
        const i16 value = (*colonna.values)[riga];
        if (value == 0) {
            continue;
        }
        Text testo = colonna.pattern.empty() ? PlainText(value) : Format(value, colonna.pattern);
        if (colonna.column == RipetDistanza) {
            testo = ConPuntoMigliaia(testo);
        } else if (colonna.column == RipetVolte) {
            StripOf(LblRipetizioni, riga)->SetCaption(kRepetitionStrip);
        }
        Box(colonna.column, riga)->SetContent(testo);
    }
    for (const TextColumn& colonna : kTexts) {
        if (!(*colonna.values)[riga].empty()) {
            Box(colonna.column, riga)->SetContent((*colonna.values)[riga]);
        }
    }
}

void frmAllenamento::EmptyBlankBoxes(int riga)
{
    for (const NumberColumn& colonna : kNumbers) {
        if ((*colonna.values)[riga] == 0) {
            Box(colonna.column, riga)->SetContent({});
        }
    }
    for (const TextColumn& colonna : kTexts) {
        if ((*colonna.values)[riga].empty()) {
            Box(colonna.column, riga)->SetContent({});
        }
    }
}

void frmAllenamento::ShowStartDate()
{
    if (TabDataInizio > kNoStartDate) {
        lblGiorniInizio->SetCaption(kDateStrip);
        dateBoxes[0]->SetContent(PlainText(TabDataInizio.Day()));
        dateBoxes[1]->SetContent(PlainText(TabDataInizio.Month()));
        dateBoxes[2]->SetContent(PlainText(TabDataInizio.Year()));
    }
}

void frmAllenamento::TabAssegnaTxt()
{
    Trap("TabAssegnaTxt - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            ShowRow(riga);
        }
        for (int riga = 1; riga <= kRows; ++riga) {
            EmptyBlankBoxes(riga);
        }
        ShowStartDate();
    });
}

bool frmAllenamento::RowDiffers(int riga) const
{
    for (const NumberColumn& colonna : kNumbers) {
        if (Number(colonna.column, riga) != (*colonna.values)[riga]) {
            return true;
        }
    }
    for (const TextColumn& colonna : kTexts) {
        if (Content(colonna.column, riga) != (*colonna.values)[riga]) {
            return true;
        }
    }
    return false;
}

i16 frmAllenamento::ControllaSaveTab()
{
    i16 esito = 0;
    Trap("ControllaSaveTab - ERRORE : ", [&] {
        for (int riga = 1; riga <= kRows; ++riga) {
            if (RowDiffers(riga)) {
                esito = 1;
            }
        }
        if (ContaCampiData() == 3 && DateOfBoxes() != TabDataInizio) {
            esito = 1;
        }
    });
    return esito;
}

i16 frmAllenamento::ContaCampiData()
{
    ControlloData();
    i16 validi = 0;
    const std::pair<int, int> fields[] = {{DateNumber(0), 31}, {DateNumber(1), 12}, {DateNumber(2), 2099}};
    for (const auto& [value, highest] : fields) {
        if (value >= 1 && value <= highest) {
            validi += 1;
        }
    }
    return validi;
}

void frmAllenamento::ControlloData()
{
    Trap("ControlloData - ERRORE : ", [this] {
        const auto correct = [this](std::size_t index, TextView message, TextView value) {
            MsgBox(message, MsgButtons::OK, MsgIcon::Exclamation);
            dateBoxes[index]->SetContent(value);
        };
        for (const int shortMonth : {4, 6, 9, 11}) {
            if (DateNumber(1) == shortMonth && DateNumber(0) > 30) {
                correct(0, "DATA INIZIO  MAX 30 GIORNI                 ", "30");
            }
        }
        const bool leap = DateNumber(2) % 4 == 0;
        if (leap && DateNumber(1) == 2 && DateNumber(0) > 29) {
            correct(0, "DATA INIZIO  MAX 29 GIORNI                 ", "29");
        }
        if (!leap && DateNumber(1) == 2 && DateNumber(0) > 28) {
            correct(0, "DATA INIZIO  MAX 28 GIORNI                 ", "28");
        }
        if (DateNumber(0) < 1 && DateNumber(1) < 1 && DateNumber(2) < 1) {
            return;
        }
        if (DateNumber(0) < 1) {
            correct(0, "DATA INIZIO  MIN GIORNO 1                 ", "1");
        }
        if (DateNumber(1) < 1) {
            correct(1, "DATA INIZIO  MIN MESE  1               ", "1");
        }
        constexpr int firstYear = 2008;
        if (DateNumber(2) < firstYear) {
            correct(2, "DATA INIZIO MIN ANNO 2008                 ", "2008");
        }
    });
}

bool frmAllenamento::IsActiveTable() const
{
    return SameText(NomeFileForm, NomeTabellaAttiva);
}

void frmAllenamento::PaintRow(int riga, const QColor& back)
{
    for (const auto& strip : strips_) {
        SetBackColour(*strip[riga], back);
    }
    for (const auto& column : boxes_) {
        SetBackColour(*column[riga], back);
    }
}

void frmAllenamento::PaintDate(const QColor& back)
{
    SetBackColour(*lblGiorniInizio, back);
    for (TextBox* box : dateBoxes) {
        SetBackColour(*box, back);
    }
}

void frmAllenamento::AssegnaTxt(i16 riga)
{
    Trap("AssegnaTxt - ERRORE : ", [&] {
        const int row = riga.value();
        PaintRow(row, TableColours::Accepted);
        const auto fore = [&](const QColor& colour) {
            SetForeColour(*lblGiorni[row], colour);
            for (const auto& strip : strips_) {
                SetForeColour(*strip[row], colour);
            }
            for (const auto& column : boxes_) {
                SetForeColour(*column[row], colour);
            }
        };
        if (riga >= IndiceTabella) {
            fore(TableColours::Fore);
        } else if (IsActiveTable()) {
            fore(TableColours::Passed);
        }
        if (!IsActiveTable()) {
            PaintDate(TableColours::Accepted);
        }
    });
}

void frmAllenamento::ColoreSfondo(i16 riga)
{
    Trap("ColoreSfondo - ERRORE : ", [&] {
        SetBackColour(*lblGiorni[riga], TableColours::Accepted);
        PaintRow(riga.value(), TableColours::Editing);
        if (!IsActiveTable()) {
            PaintDate(TableColours::Editing);
        }
        cmdOK->setEnabled(true);
    });
}

void frmAllenamento::ColoreRiga(i16 riga)
{
    Trap("ColoreRiga - ERRORE : ", [&] { PaintRow(riga.value(), TableColours::Chosen); });
}

void frmAllenamento::RecolourAllRows()
{
    for (i16 riga = 1; riga <= kRows; riga += 1) {
        AssegnaTxt(riga);
    }
}

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
        SalvaTabellaConNome(tabCommonDialog);
        if (FlagTabellaSalvata == 1) {
            return;
        }
        percorsoSalvato_ = tabCommonDialog.FileName;
        TabellaModificata = 0;
        setWindowTitle(ToQString("Tabella allenamento : " + NomeSenzaCartella(tabCommonDialog.FileName)));
    });
}

/// Makes sure that this window's table has a path, saving it under one if need be; false when the user cancelled.
bool frmAllenamento::ChooseActivePath()
{
    if (!NomeFileForm.empty()) {
        return true;
    }
    if (percorsoSalvato_.empty()) {
        SalvaTabellaConNome(tabCommonDialog);
        if (FlagTabellaSalvata == 1) {
            return false;
        }
        percorsoSalvato_ = tabCommonDialog.FileName;
    }
    NomeFileForm = percorsoSalvato_;
    return true;
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

void SalvaTabellaConNome(CommonDialog& dialog)
{
    bool riprova = false;
    TrapWith(
        [&] {
            FlagTabellaSalvata = 0;
            dialog.CancelError = true;
            dialog.Flags = DialogFlags::OverwritePrompt | DialogFlags::HideReadOnly | DialogFlags::NoChangeDir;
            dialog.InitDir = CartellaDiario;
            dialog.Filter = "File Tabella (*.tab)|*.tab|";
            dialog.DialogTitle = "Salva Tabella con nome";
            dialog.ShowSave();
            const Text cartella =
                Left(dialog.FileName, std::max<std::ptrdiff_t>(InStrRev(dialog.FileName, "\\") - 1, 0));
            if (cartella == CartellaDiario) {
                ScriviTabella(dialog.FileName);
                return;
            }
            dialog.FileName = NomeSenzaCartella(dialog.FileName);
            MsgBox(" LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA   ", MsgButtons::OK, MsgIcon::Critical);
            riprova = true;
            throw ErroreRunTime(Errore::Annullato);
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError(kBareTitle, error);
                return;
            }
            FlagTabellaSalvata = 1;
            if (riprova) {
                SalvaTabellaConNome(dialog);
            }
        });
}

} // namespace zelvia
