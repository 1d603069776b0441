// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor: how it opens and closes, and the colours that show the state of its rows.
#include "windows/plan/FrmAllenamento.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "windows/plan/PlanColumns.h"
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

void frmAllenamento::PaintRow(int row, const QColor& back)
{
    for (const auto& strip : strips_) {
        SetBackColour(*strip[row], back);
    }
    grid_.VisitRow(row, [&](TextBox& box) { SetBackColour(box, back); });
}

void frmAllenamento::WriteRow(int row, const QColor& fore)
{
    SetForeColour(*lblGiorni[row], fore);
    for (const auto& strip : strips_) {
        SetForeColour(*strip[row], fore);
    }
    grid_.VisitRow(row, [&](TextBox& box) { SetForeColour(box, fore); });
}

void frmAllenamento::PaintDate(const QColor& back)
{
    SetBackColour(*lblGiorniInizio, back);
    for (TextBox* box : dateBoxes) {
        SetBackColour(*box, back);
    }
}

void frmAllenamento::AssegnaTxt(i16 row)
{
    Trap("AssegnaTxt - ERRORE : ", [&] {
        PaintRow(row.value(), TableColours::Accepted);
        if (row >= IndiceTabella) {
            WriteRow(row.value(), TableColours::Fore);
        } else if (IsActiveTable()) {
            WriteRow(row.value(), TableColours::Passed);
        }
        if (!IsActiveTable()) {
            PaintDate(TableColours::Accepted);
        }
    });
}

void frmAllenamento::ColoreSfondo(i16 row)
{
    Trap("ColoreSfondo - ERRORE : ", [&] {
        SetBackColour(*lblGiorni[row], TableColours::Accepted);
        PaintRow(row.value(), TableColours::Editing);
        if (!IsActiveTable()) {
            PaintDate(TableColours::Editing);
        }
        cmdOK->setEnabled(true);
    });
}

void frmAllenamento::ColoreRiga(i16 row)
{
    Trap("ColoreRiga - ERRORE : ", [&] { PaintRow(row.value(), TableColours::Chosen); });
}

void frmAllenamento::RecolourAllRows()
{
    for (i16 row = 1; row <= kRows; row += 1) {
        AssegnaTxt(row);
    }
}

} // namespace zelvia
