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

/// What the window of a route's description needs of the day page.
class RoutePage
{
public:
    virtual ~RoutePage() = default;
    /// Puts a distance into the spin controls of the day.
    virtual void SetDistance(i32 km, i32 metres) = 0;
};

/// The window that describes the stretches of one route, the one named by PercorsoCorrente. Closing it stores them and
/// gives their total to the day page as its distance.
class frmDesPercorso : public Form
{
    Q_OBJECT

public:
    /// Loads the route; the window stays over the page's window and blocks it while it is open.
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
    i32 TotaleMetri; ///< The sum of the boxes.
    i32 RestoMetri;  ///< Of 1000 metres or more, what is left after the whole kilometres; else 0.

protected:
    void OnUnload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildGrid();
    void BuildLabels();
    void BuildTotals();

    RoutePage& page_;
    BoxGrid grid_;
};

} // namespace zelvia
