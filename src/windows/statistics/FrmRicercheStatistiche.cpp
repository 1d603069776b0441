// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The search window's work: conditions, period, search, result.
#include "windows/statistics/FrmRicercheStatistiche.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "toolkit/Events.h"
#include "toolkit/Printer.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace zelvia
{

using namespace Module1;

void frmRicercheStatistiche::InizializzaVarMedie()
{
    criteria = {};
    ClearTotals(totals);
}

PeriodEntries frmRicercheStatistiche::PeriodTexts() const
{
    PeriodEntries texts;
    std::transform(periodBoxes.begin(), periodBoxes.end(), texts.begin(),
                   [](const TextBox* box) { return box->Content(); });
    return texts;
}

void frmRicercheStatistiche::AssegnaVariabili()
{
    static constexpr i16 SearchCriteria::*dates[] = {&SearchCriteria::GiornoInizio, &SearchCriteria::MeseInizio,
                                                     &SearchCriteria::AnnoInizio,   &SearchCriteria::GiornoFine,
                                                     &SearchCriteria::MeseFine,     &SearchCriteria::AnnoFine};
    const PeriodEntries texts = PeriodTexts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        criteria.*dates[i] = Parsed<i16>(texts[i]);
    }
    for (const Categoria category : kAllCategories) {
        const Text caption = ControlsFor(category).lbl->Caption();
        std::visit(Overloaded{[&](Text SearchCriteria::*text) { criteria.*text = caption; },
                              [&](i16 SearchCriteria::*number) { criteria.*number = Parsed<i16>(caption); }},
                   StatisticOf(category).criterion);
    }
}

void frmRicercheStatistiche::cmdCategoria_Click(Categoria category)
{
    Label& lbl = *ControlsFor(category).lbl;
    NascondiMedie();
    lstStatistiche->Clear();
    lbl.SetCaption({});
    if (!lbl.Visible()) {
        lbl.SetVisible(true);
        Lista(category);
    } else {
        lbl.SetVisible(false);
        lblTitoliSta->SetVisible(false);
    }
    ControlsFor(category).cmd->SetSwitched(lbl.Visible());
}

bool frmRicercheStatistiche::eventFilter(QObject* watched, QEvent* event)
{
    const auto found = std::find_if(kAllCategories.begin(), kAllCategories.end(),
                                    [&](Categoria category) { return ControlsFor(category).cmd == watched; });
    return event->type() == QEvent::KeyPress && found != kAllCategories.end() &&
           ConditionKey(*found, static_cast<const QKeyEvent*>(event)->key());
}

/// Of a condition that is on, Down goes to its values and Delete takes it away; true for these.
bool frmRicercheStatistiche::ConditionKey(Categoria category, int key)
{
    if (!ControlsFor(category).lbl->Visible()) {
        return false;
    }
    const bool listed = lstStatistiche->ListCount() > 0 && SameText(StatisticOf(category).title, CategoriaLista);
    if (key == Qt::Key_Down && listed) {
        lstStatistiche->SetFocus();
        return true;
    }
    if (key == Qt::Key_Delete) {
        Fire(ControlsFor(category).cmd->Click);
        return true;
    }
    return false;
}

void frmRicercheStatistiche::Lista(Categoria category)
{
    const Statistic& statistic = StatisticOf(category);
    Trap("Lista " + Text(statistic.name) + " - ERRORE : ", [&] {
        CategoriaLista = Text(statistic.title);
        CountValues(statistic);
        for (int i = 1; i <= kMaxCategories; ++i) {
            if (statistic.number == nullptr && !NomeCategoria[i].empty()) {
                lstStatistiche->AddItem(NomeCategoria[i]);
            } else if (statistic.number != nullptr && ValoreCategoria[i] != 0) {
                lstStatistiche->AddItem(PlainText(ValoreCategoria[i]));
            }
        }
        lblTitoliSta->SetCaption(CategoriaLista);
        lblTitoliSta->SetVisible(true);
    });
}

void frmRicercheStatistiche::lstStatistiche_DblClick()
{
    for (const Categoria category : kAllCategories) {
        if (SameText(StatisticOf(category).title, CategoriaLista)) {
            ControlsFor(category).lbl->SetCaption(lstStatistiche->List(lstStatistiche->ListIndex()));
        }
    }
}

void frmRicercheStatistiche::cmdPeriodo_Click()
{
    const bool show = !lblDalTit->Visible();
    cmdPeriodo->SetSwitched(show);
    for (Control* control : {lblDalTit, lblDataInizio, lblAlTit, lblDataFine}) {
        control->SetVisible(show);
    }
    for (TextBox* box : periodBoxes) {
        box->SetContent({});
        box->SetVisible(show);
    }
    if (show) {
        periodBoxes[PeriodBox::GiornoInizio]->SetFocus();
    }
}

void frmRicercheStatistiche::ControlloData(i16& error)
{
    error = 0;
    Trap("Controllo Data - ERRORE : ", [&] {
        const PeriodCheck check = CheckPeriod(PeriodTexts());
        for (const PeriodCorrection& correction : check.corrections) {
            MsgBox(*correction.message);
            periodBoxes[correction.box]->SetContent(correction.value);
        }
        if (check.reversed) {
            MsgBox(Messages::kPeriodReversed);
            error = 1;
        }
    });
}

void frmRicercheStatistiche::cmdAvvia_Click()
{
    i16 error;
    ControlloData(error);
    if (error == 1) {
        return;
    }
    InizializzaVarMedie();
    AssegnaVariabili();
    lstMedie->Clear();
    lblTitoliSta->SetVisible(false);
    RicercaMedie();
    ShowHeads(true);
}

void frmRicercheStatistiche::RicercaMedie()
{
    const SearchResult result = FindRuns(Giorni, GiornoCorrente, criteria, totals);
    totals = result.totals;
    auto listed = result.lines.begin();
    const auto list = [&](std::size_t count) {
        const auto end = result.lines.begin() + static_cast<std::ptrdiff_t>(count);
        lstMedie->AddItems(std::vector<TextView>(std::exchange(listed, end), end));
    };
    // While a box is up the list shows what had been found when its error arose.
    for (const SearchError& error : result.errors) {
        list(error.lines);
        ReportError(error.title, error.error);
    }
    list(result.lines.size());
    if (!result.ended) {
        AddUp();
    }
}

/// Shows each total as soon as it is known, before any box that the next one brings.
void frmRicercheStatistiche::AddUp()
{
    Trap("SommaKm - ERRORE : ", [this] { SommaKm(totals); });
    VisualLblTotali();
    lblTcorse->SetCaption(RunsText(totals));
    lblTkm->SetCaption(DistanceText(totals));
    Trap("Tempi Totali - ERRORE : ", [this] { TempiTotali(totals); });
    lblTtempi->SetCaption(TimesText(totals));
    Trap("Media Totali - ERRORE : ", [this] { MediaTotali(totals); });
    lblTmedia->SetCaption(MeanText(totals));
}

/// What the window shows of its search.
SearchSheetTexts frmRicercheStatistiche::SheetTexts() const
{
    SearchSheetTexts texts;
    texts.date = DataCorrente;
    const PeriodEntries period = PeriodTexts();
    std::copy_n(period.begin(), texts.start.size(), texts.start.begin());
    std::copy_n(period.begin() + PeriodBox::GiornoFine, texts.end.size(), texts.end.begin());
    std::transform(controls_.begin(), controls_.end(), texts.criteria.begin(),
                   [](const CriterionControls& controls) { return controls.lbl->Caption(); });
    for (int i = 0; i < lstMedie->ListCount(); ++i) {
        texts.lines.push_back(lstMedie->List(i));
    }
    texts.totals = {lblTcorse->Caption(), lblTkm->Caption(), lblTtempi->Caption(), lblTmedia->Caption()};
    return texts;
}

void frmRicercheStatistiche::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [this] { return SearchSheet(SheetTexts()); });
}

void frmRicercheStatistiche::NascondiMedie()
{
    ShowHeads(false);
    NascondiLblTotali();
}

void frmRicercheStatistiche::ShowHeads(bool visible)
{
    for (Control* control : std::initializer_list<Control*>{lblTitoliMedie, lblTitoliMedie2, lstMedie}) {
        control->SetVisible(visible);
    }
}

void frmRicercheStatistiche::ShowTotals(bool visible)
{
    for (Control* control : totals_) {
        control->SetVisible(visible);
    }
    for (Picture* shape : shapes_) {
        shape->SetVisible(!visible);
    }
}

} // namespace zelvia
