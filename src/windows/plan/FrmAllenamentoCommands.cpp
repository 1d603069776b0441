// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's commands: its buttons and the pop-up of its rows.
#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "toolkit/Printer.h"
#include "toolkit/QtText.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/PlanColumns.h"
#include "windows/plan/TableWindows.h"

#include <algorithm>
#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

namespace
{

/// Runs the save dialog until the user picks a name in CartellaDiario, and writes the table in memory there, or
/// cancels: FlagTabellaSalvata is then 1. Reports its own failure. True when the file was written.
bool SalvaTabellaConNome(CommonDialog& dialog)
{
    bool again = false;
    bool written = false;
    TrapWith(
        [&] {
            FlagTabellaSalvata = 0;
            dialog.CancelError = true;
            dialog.Flags = DialogFlags::OverwritePrompt | DialogFlags::HideReadOnly | DialogFlags::NoChangeDir;
            dialog.InitDir = CartellaDiario;
            dialog.Filter = "File Tabella (*.tab)|*.tab|";
            dialog.DialogTitle = "Salva Tabella con nome";
            dialog.ShowSave();
            const Text folder = Left(dialog.FileName, std::max<std::ptrdiff_t>(InStrRev(dialog.FileName, "\\") - 1, 0));
            if (folder == CartellaDiario) {
                written = ScriviTabella(dialog.FileName);
                return;
            }
            dialog.FileName = NomeSenzaCartella(dialog.FileName);
            MsgBox(Messages::kTableSavesElsewhere);
            again = true;
            throw ErroreRunTime(Errore::Annullato);
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError(kBareTitle, error);
                return;
            }
            FlagTabellaSalvata = 1;
            if (again) {
                written = SalvaTabellaConNome(dialog);
            }
        });
    return written;
}

} // namespace

void frmAllenamento::AcceptAllRows()
{
    for (i16 row = 1; row <= kRows; row += 1) {
        AssegnaTxt(row);
        AssegnaTab(row);
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
        savedPath_ = tabCommonDialog.FileName;
    } else if (FlagTabellaSalvata != 1) {
        // A file that may be half written must not be activated.
        savedPath_.clear();
    }
}

/// Makes sure that this window's table has a file, saving it if need be; false when none was written.
bool frmAllenamento::ChooseActivePath()
{
    if (!NomeFileForm.empty()) {
        return true;
    }
    if (savedPath_.empty()) {
        SaveUnderName();
    }
    NomeFileForm = savedPath_;
    return !NomeFileForm.empty();
}

TableSheetTexts frmAllenamento::SheetTexts() const
{
    TableSheetTexts texts{.date = DataCorrente, .title = FromQString(windowTitle()), .rows = {}, .start = {}};
    grid_.Visit([&](int column, int row) {
        texts.rows[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = Content(column, row);
    });
    for (std::size_t i = 0; i < dateBoxes.size(); ++i) {
        texts.start[i] = dateBoxes[i]->Content();
    }
    return texts;
}

void frmAllenamento::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [this] { return TableSheet(SheetTexts()); });
}

void frmAllenamento::cmdAttiva_Click()
{
    Trap("cmdAttiva - ERRORE : ", [this] {
        if (ContaCampiData() < 3) {
            MsgBox(Messages::kPlanWithoutStart);
            return;
        }
        const CalendarDate before = std::exchange(TabDataInizio, DateOfBoxes());
        if (!NomeTabellaAttiva.empty() && MsgBox(Messages::kReplaceActiveTable) == MsgAnswer::Cancel) {
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

void frmAllenamento::ShowMovedRows()
{
    TabAssegnaTxt();
    RecolourAllRows();
    TabellaModificata = 1;
}

void frmAllenamento::mnuInserisciRiga_Click()
{
    Trap("mnuInserisciRiga - ERRORE : ", [this] {
        const i16 chosen = RigaSelezionata;
        for (i16 i = chosen; i <= kRows - 1; i += 1) {
            CopiaRiga(i + 1, i);
        }
        AzzeraRiga(chosen);
        for (i16 i = 1; i <= chosen - 1; i += 1) {
            AssegnaTab(i);
        }
        ShowMovedRows();
    });
}

void frmAllenamento::mnuEliminaRiga_Click()
{
    Trap("mnuEliminaRiga - ERRORE : ", [this] {
        const i16 chosen = RigaSelezionata;
        for (i16 i = 1; i <= chosen - 1; i += 1) {
            AssegnaTab(i);
        }
        for (i16 i = chosen; i <= kRows - 1; i += 1) {
            CopiaRiga(i, i + 1);
        }
        AzzeraRiga(kRows);
        ShowMovedRows();
    });
}

RowGroups frmAllenamento::Groups(int row) const
{
    return {Content(Km, row),      Content(Metri, row),       Content(Ore, row),          Content(Minuti, row),
            Content(Secondi, row), Content(MediaMinuti, row), Content(MediaSecondi, row), Content(MediaMillesimi, row)};
}

void frmAllenamento::cmdCalcoloMedie_Click()
{
    Trap("cmdCalcoloMedie - ERRORE : ", [this] {
        for (i16 row = 1; row <= kRows; row += 1) {
            CalculateRow(row);
        }
    });
}

void frmAllenamento::CalculateRow(i16 row)
{
    if (AsksForAverage(Groups(row.value()))) {
        CalcolaMediaKm(row);
    }
    if (AsksForTime(Groups(row.value()))) {
        CalcolaTempo(row);
    }
    if (AsksForDistance(Groups(row.value()))) {
        CalcolaDistanza(row);
    }
    if (OnlyOneGroup(Groups(row.value()))) {
        MsgBox(Messages::kRowNeedsTwoValues, PlainText(row));
    }
}

void frmAllenamento::CalcolaMediaKm(i16 row)
{
    Trap("CalcolaMediaKm - ERRORE : ", [&] {
        const auto average = AverageFrom(Groups(row.value()));
        if (!average) {
            MsgBox(Messages::kRowTooSlow, PlainText(row));
            return;
        }
        Box(MediaMinuti, row.value())->SetContent(PlainText(average->minutes));
        Box(MediaSecondi, row.value())->SetContent(PlainText(average->seconds));
        Box(MediaMillesimi, row.value())->SetContent(average->thousandths);
    });
}

void frmAllenamento::CalcolaDistanza(i16 row)
{
    Trap("CalcolaDistanza - ERRORE : ", [&] {
        const RowDistance distance = DistanceFrom(Groups(row.value()));
        Box(Km, row.value())->SetContent(PlainText(distance.km));
        Box(Metri, row.value())->SetContent(PlainText(distance.metres));
    });
}

void frmAllenamento::CalcolaTempo(i16 row)
{
    Trap("CalcolaTempo - ERRORE : ", [&] {
        const RowTime time = TimeFrom(Groups(row.value()));
        Box(Ore, row.value())->SetContent(PlainText(time.hours));
        Box(Minuti, row.value())->SetContent(PlainText(time.minutes));
        Box(Secondi, row.value())->SetContent(PlainText(time.seconds));
    });
}

} // namespace zelvia
