// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "toolkit/BoxGrid.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/TextBox.h"

namespace zelvia
{

class RoutePage;

/// The window that describes the stretches of one route, the one named by PercorsoCorrente. Closing it stores them and
/// hands their total to the day page as its distance.
class frmDesPercorso : public Form
{
    Q_OBJECT

public:
    /// Loads the route; the window stands over the page's window and blocks it while it is open.
    frmDesPercorso(QWidget* owner, RoutePage& page);

    void VisualizzaListaPercorso();
    void CalcolaDistanza();
    void AssegnaArray();
    void AzzeraVideo();

    Control& FocusSink() override { return *txtTratto[1]; }

    BoundedArray<TextBox*, 1, 20> txtTratto;
    BoundedArray<TextBox*, 1, 20> txtKm;
    BoundedArray<TextBox*, 1, 20> txtMetri;
    TextBox* txtDistanzaKm = nullptr;
    TextBox* txtDistanzaMetri = nullptr;

    i32 TotaleKm;    ///< With the whole kilometres of the metres.
    i32 TotaleMetri; ///< As they stand in the boxes.
    i32 RestoMetri;  ///< What the whole kilometres leave of 1000 metres or more, else 0.

protected:
    void OnUnload() override;

private:
    void BuildGrid();
    void BuildLabels();
    void BuildTotals();

    RoutePage& page_;
    BoxGrid grid_;
};

} // namespace zelvia
