// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "diary/CalendarSheet.h"
#include "toolkit/BoxGrid.h"
#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/TextBox.h"
#include "toolkit/UpDown.h"
#include "windows/races/RaceColumns.h"

#include <array>

namespace zelvia
{

/// The window of the race calendar: a grid of 20 races at a time. Its boxes are the working copy; they go into the
/// calendar's columns when the page is turned, when the user saves and when the window closes.
class frmCalendario : public Form
{
    Q_OBJECT

public:
    frmCalendario();

    Control& FocusSink() override { return *Box(CalendarGrid::RaceColumn::Giorno, 1); }

    /// Corrects the dates of the page, with a message for each correction and for each part that is missing.
    void ContrData();
    /// Asks whether to save changes, as closing does; true when the user wants to stay.
    bool QueryUnload() override;
    /// Shows the calendar in memory, another diary's, from its first page on.
    void ShowOtherDiary();
    /// Copies six boxes of each row to the hidden labels that the print-out takes.
    void AllineaLbl();

    void cmdSalva_Click();
    void cmdStampa_Click();
    void upPaginaGare_Change();

    /// A box of the grid; rows are 1..20.
    TextBox* Box(CalendarGrid::RaceColumn column, int row) const { return grid_.Box(column, row); }

    i16 PrimaGaraPagina;      ///< Row of the calendar before the first of the page: 0, 20, 40, 60 or 80.
    i16 CalendarioModificato; ///< 1 when the last comparison found the page different from the columns.

    BoundedArray<Label*, 1, CalendarGrid::kRows> lblNumeroGara;
    BoundedArray<Label*, 1, CalendarGrid::kRows> lblGiornoGara; ///< The dashes between the boxes of the date.
    UpDown* upPaginaGare = nullptr;
    Label* lblPaginaGare = nullptr;
    Button* cmdSalva = nullptr;
    Button* cmdStampa = nullptr;
    Button* cmdEsci = nullptr;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildHeads();
    void BuildLabels(int row);
    void BuildGrid();
    void BuildFoot();
    double Number(CalendarGrid::RaceColumn column, int row) const { return grid_.Number(column, row); }
    int RaceOf(int row) const { return PrimaGaraPagina.value() + row; }

    void Load();
    void ShowPage();
    void TurnPage(bool forward);
    void VisualizzaCalendarioGare();
    void AssegnaPaginaGare();
    void AzzeraPaginaGare();
    CalendarSheetTexts SheetTexts() const;
    /// `result` becomes 1 when the page differs from the columns, else 0.
    void ControllaSaveGar(i16& result);
    /// `result` becomes 1 when two rows carry the same date, else 0; reports each pair.
    void ControllaDateGare(i16& result);

    BoxGrid grid_{CalendarGrid::kRaceColumns};
    std::array<BoundedArray<Label*, 1, CalendarGrid::kRows>, CalendarGrid::kPrintLabels.size()> printLabels_;
};

} // namespace zelvia
