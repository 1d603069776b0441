// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Date.h"
#include "diary/TableCalculations.h"
#include "diary/TableSheet.h"
#include "toolkit/BoxGrid.h"
#include "toolkit/Button.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/TextBox.h"
#include "windows/plan/PlanColumns.h"

#include <array>

class QMenu;

namespace zelvia
{

class TableWindows;

/// The editor of one training table. Its boxes are the working copy; the columns in memory are filled from them.
class frmAllenamento : public Form
{
    Q_OBJECT

public:
    explicit frmAllenamento(TableWindows& windows);

    Control& FocusSink() override { return *Box(TableGrid::Km, 1); }

    // The grid and the columns; rows are 1..31.
    void AssegnaTab(i16 row);
    void AssegnaTxt(i16 row);
    void TabAssegnaTxt();
    void ColoreSfondo(i16 row);
    void ColoreRiga(i16 row);
    i16 ControllaSaveTab();
    /// How many of day, month and year of the start date are valid, 0..3.
    i16 ContaCampiData();
    /// Repairs the boxes of the start date, with a message for each repair.
    void ControlloData();
    /// Copies the boxes of `source` into the columns at `target`. A shown 1.500 arrives as 2: its dot is a decimal
    /// point here.
    void CopiaRiga(i16 target, i16 source);
    void AzzeraRiga(i16 row);
    void CalcolaMediaKm(i16 row);
    void CalcolaDistanza(i16 row);
    void CalcolaTempo(i16 row);

    void cmdOK_Click();
    void cmdAttiva_Click();
    void cmdDisattiva_Click();
    void cmdCalcoloMedie_Click();
    void cmdSalva_Click();
    void cmdStampa_Click();
    void cmdEsci_Click() { Unload(); }
    void mnuInserisciRiga_Click();
    void mnuEliminaRiga_Click();

    TextBox* Box(TableGrid::Column column, int row) const { return grid_.Box(column, row); }
    Label* StripOf(TableGrid::Strip strip, int row) const { return strips_[static_cast<std::size_t>(strip)][row]; }

    i16 TabellaModificata; ///< 1 when rows moved, or when cmdOK found the boxes different from the columns.
    Text NomeFileForm;     ///< Full path of the table opened here; empty for a new one.
    i16 RigaSelezionata;   ///< Row of the last right click.
    CommonDialog tabCommonDialog;

    BoundedArray<Label*, 1, 31> lblGiorni;
    std::array<TextBox*, 3> dateBoxes{}; ///< txtGiornoInizio, txtMeseInizio, txtAnnoInizio.
    Label* lblGiorniInizio = nullptr;
    Button* cmdOK = nullptr;
    Button* cmdAttiva = nullptr;
    Button* cmdDisattiva = nullptr;
    Button* cmdCalcoloMedie = nullptr;
    Button* cmdSalva = nullptr;
    Button* cmdStampa = nullptr;
    Button* cmdEsci = nullptr;
    QMenu* mnuRigheTabella;

protected:
    void OnUnload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildHeads();
    void BuildLabels(int row);
    void BuildGrid();
    void BuildPanel();
    void BuildStartDate();
    void BuildRowMenu();
    void Load();

    void ShowRowMenu(int row, const QPoint& position);
    void BeginEditing();

    Text Content(int column, int row) const { return grid_.Content(column, row); }
    int DateNumber(std::size_t index) const;
    CalendarDate DateOfBoxes() const;
    bool RowDiffers(int row) const;
    void ShowRow(int row);
    void ShowStartDate();
    RowGroups Groups(int row) const;
    void CalculateRow(i16 row);

    bool IsActiveTable() const;
    void PaintRow(int row, const QColor& back);
    void WriteRow(int row, const QColor& fore);
    void PaintDate(const QColor& back);
    void AcceptAllRows();
    void RecolourAllRows();
    void ShowMovedRows();
    void SaveUnderName();
    bool ChooseActivePath();
    TableSheetTexts SheetTexts() const;

    TableWindows& windows_;
    BoxGrid grid_{TableGrid::kPlanColumns};
    BoxGrid start_{TableGrid::kStartColumns};
    std::array<BoundedArray<Label*, 1, 31>, TableGrid::kStrips> strips_;
    Text savedPath_; ///< Where this window last saved, for a table that was not opened from a file.
};

} // namespace zelvia
