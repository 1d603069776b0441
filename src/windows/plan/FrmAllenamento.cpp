// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor: how it opens and closes, and the colours that tell the state of its rows.
#include "windows/plan/FrmAllenamento.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "windows/plan/TableColours.h"
#include "windows/plan/TablePage.h"
#include "windows/plan/TableWindows.h"

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

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

bool frmAllenamento::IsActiveTable() const
{
    return SameText(NomeFileForm, NomeTabellaAttiva);
}

void frmAllenamento::PaintRow(int riga, const QColor& back)
{
    for (const auto& strip : strips_) {
        SetBackColour(*strip[riga], back);
    }
    grid_.VisitRow(riga, [&](TextBox& box) { SetBackColour(box, back); });
}

void frmAllenamento::WriteRow(int riga, const QColor& fore)
{
    SetForeColour(*lblGiorni[riga], fore);
    for (const auto& strip : strips_) {
        SetForeColour(*strip[riga], fore);
    }
    grid_.VisitRow(riga, [&](TextBox& box) { SetForeColour(box, fore); });
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
        if (riga >= IndiceTabella) {
            WriteRow(row, TableColours::Fore);
        } else if (IsActiveTable()) {
            WriteRow(row, TableColours::Passed);
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

} // namespace zelvia
