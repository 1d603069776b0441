// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/CategoryStatistics.h"
#include "diary/RunSearch.h"
#include "diary/SearchPeriod.h"
#include "diary/StatisticSheets.h"
#include "toolkit/BoxGrid.h"
#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/ListBox.h"
#include "toolkit/Picture.h"
#include "toolkit/TextBox.h"

#include <array>
#include <functional>
#include <vector>

namespace zelvia
{

/// Opens the chart of the paces of a search.
using PaceChartOpener = std::function<void(const PaceTable& paces)>;

/// Finds the runs of the open diary that fulfil a set of conditions, lists them and adds them up. It is either
/// choosing, its result hidden, or showing a result.
class frmRicercheStatistiche : public Form
{
    Q_OBJECT

public:
    explicit frmRicercheStatistiche(PaceChartOpener openChart);

    Control& FocusSink() override { return *ControlsFor(Categoria::Percorso).cmd; }

    /// The button of a category and the label of its condition, which is off while the label is hidden.
    struct CriterionControls {
        Button* cmd = nullptr;
        Label* lbl = nullptr;
    };
    const CriterionControls& ControlsFor(Categoria category) const
    {
        return controls_[static_cast<std::size_t>(category)];
    }

    void AssegnaVariabili();
    // Offer the values of a category, ranked as its statistic does.
    void ListaPercorso() { Lista(Categoria::Percorso); }
    void ListaLunghezza() { Lista(Categoria::Lunghezza); }
    void ListaKm() { Lista(Categoria::Km); }
    void ListaAndatura() { Lista(Categoria::Andatura); }
    void ListaFondo() { Lista(Categoria::Fondo); }
    void ListaTipo() { Lista(Categoria::Tipo); }
    void ListaStagione() { Lista(Categoria::Stagione); }
    void ListaMeteo() { Lista(Categoria::Meteo); }
    void ListaTemperatura() { Lista(Categoria::Temperatura); }
    void ListaCorridori() { Lista(Categoria::Corridori); }
    void ListaPeso() { Lista(Categoria::Peso); }
    void ListaRipetizioni() { Lista(Categoria::Ripetizioni); }
    void RicercaMedie();
    void InizializzaVarMedie();
    /// Repairs the boxes of the period, with a message for each repair; `error` becomes 1 when there is to be no
    /// search.
    void ControlloData(i16& error);
    void VisualLblTotali() { ShowTotals(true); }
    void NascondiLblTotali() { ShowTotals(false); }

    void cmdCategoria_Click(Categoria category);
    void lstStatistiche_DblClick();
    void cmdPeriodo_Click();
    void cmdAvvia_Click();
    void cmdStampa_Click();

    SearchCriteria criteria;
    SearchTotals totals;
    Text CategoriaLista; ///< The word of the category in lstStatistiche.

    ListBox* lstStatistiche = nullptr;
    Label* lblTitoliSta = nullptr;
    Button* cmdPeriodo = nullptr;
    std::array<TextBox*, PeriodBox::kBoxes> periodBoxes{}; ///< txtGiornoInizio .. txtAnnoFine.
    Label* lblDalTit = nullptr;
    Label* lblDataInizio = nullptr;
    Label* lblAlTit = nullptr;
    Label* lblDataFine = nullptr;
    Button* cmdAvvia = nullptr;
    ListBox* lstMedie = nullptr;
    Label* lblTitoliMedie = nullptr;
    Label* lblTitoliMedie2 = nullptr;
    Label* lblTcorse = nullptr;
    Label* lblTkm = nullptr;
    Label* lblTtempi = nullptr;
    Label* lblTmedia = nullptr;
    Button* cmGrafico = nullptr;
    Button* cmdStampa = nullptr;
    Button* cmdEsci = nullptr;

protected:
    /// Sees the keys of the conditions' buttons first.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildConditions();
    void BuildPeriod();
    void BuildResult();
    void BuildTotals();
    Label* MakeLabel(const char* name, TextView caption, const QRect& place, int pixels);
    Label* MakeSlip(const char* name, const QRect& place);
    ListBox* MakeList(const char* name, const QRect& place, const QString& spoken);

    bool ConditionKey(Categoria category, int key);
    void Lista(Categoria category);
    void AddUp();
    void NascondiMedie();
    void ShowHeads(bool visible);
    void ShowTotals(bool visible);
    PeriodEntries PeriodTexts() const;
    SearchSheetTexts SheetTexts() const;

    PaceChartOpener openChart_;
    BoxGrid period_;
    std::array<CriterionControls, kAllCategories.size()> controls_;
    std::vector<Control*> totals_;     ///< The totals and their heads.
    std::array<Picture*, 3> shapes_{}; ///< shp6 .. shp8, the empty form in the place of the totals.
};

} // namespace zelvia
