// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the fields of the page share, the commands that restore the lists and blank the day, the statistics.
#include "core/RunTimeError.h"
#include "diary/ProgramFiles.h"
#include "diary/RouteModel.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "windows/page/FrmMain.h"

#include <QKeyEvent>

namespace zelvia
{

using namespace Module1;

namespace
{

bool Agreed(const Message& question)
{
    return MsgBox(question) == MsgAnswer::OK;
}

} // namespace

void frmMain::mnuListaIniziale_Click()
{
    Trap("mnuListaIniziale - ERRORE : ", [this] {
        if (Agreed(Messages::kFirstLists)) {
            InizializzaListe();
            AzzeraPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuListaPrecedente_Click()
{
    Trap("mnuListaPrecedente - ERRORE : ", [this] {
        if (Agreed(Messages::kSavedLists)) {
            NomeFleListe();
            files_.CaricaListe();
            CaricaPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuAzzeraGiorno_Click()
{
    Trap("mnuAzzeraGiorno - ERRORE : ", [this] {
        if (Agreed(Messages::kBlankDay)) {
            AzzeraRecordGiorno(GiornoCorrente);
            FileModificato = 1;
            AzzeraCampi();
            VisualizzaGiorno();
        }
    });
}

frmStatistiche1& frmMain::StatisticsWindow()
{
    return statistiche_.Load([this](const Text& title) { MostraGrafico(grafici_, title); });
}

void frmMain::Statis(zelvia::Categoria category)
{
    RunStatistic(StatisticOf(category), StatisticsWindow());
}

void frmMain::ShowStatistic(zelvia::Categoria category)
{
    AssegnaCampi();
    Statis(category);
    StatisticsWindow().ShowInFront();
}

void frmMain::mnuMedie_Click()
{
    AssegnaCampi();
    ricerche_.Load([this](const PaceTable& paces) { MostraGraficoMedia(grafici_, paces); }).ShowInFront();
}

void frmMain::ConnectFields()
{
    for (const SelectionList list : kAllLists) {
        if (list != SelectionList::Percorso) {
            fields_[static_cast<int>(list)] = std::make_unique<SelectionField>(*this, list);
        }
    }
    auto route = std::make_unique<RouteField>(*this);
    route_ = route.get();
    fields_[static_cast<int>(SelectionList::Percorso)] = std::move(route);
    for (const NumberRow& row : NumberRows()) {
        for (const GroupRow& group : row.groups) {
            if (group.spins.empty()) {
                continue;
            }
            numbers_.push_back(std::make_unique<SpinGroup>(*this, row, group));
            if (group.then == Then::Splits) {
                splits_.emplace(*this, *numbers_.back());
            }
        }
    }
    notes_.emplace(*this);
    dates_.emplace(*this);
    keys_.emplace(*this);
    tmrFocus->Tick = [this] { tmrFocus_Timer(); };
}

void frmMain::FollowInTabOrder(QWidget& field)
{
    QWidget& sink = FocusSink().Widget();
    // Qt leaves alone what Tab does not stop at.
    sink.setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(&field, &sink);
    sink.setFocusPolicy(Qt::NoFocus);
}

void frmMain::EnterField(Control& control)
{
    control.GotFocus = [this, &control] {
        control.GotFocus = {};
        CursoreMano();
    };
    control.SetFocus();
}

/// A key that no control of the page had a use for.
void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (!keys_->Handle(*event)) {
        Form::keyPressEvent(event);
    }
}

bool frmMain::focusNextPrevChild(bool next)
{
    return keys_->MoveFocus(next, [this, next] { return Form::focusNextPrevChild(next); });
}

void frmMain::CursoreMano()
{
    Trap("CursoreMano - ERRORE : ", [this] {
        const QCursor hand = LoadCursor(InstalledFile("mano.cur"));
        for (Label* label : captions) {
            label->setCursor(hand);
        }
    });
}

void frmMain::CursoreNormale()
{
    Trap("CursoreNormale - ERRORE : ", [this] {
        for (Label* label : captions) {
            label->unsetCursor();
        }
    });
}

void frmMain::SetDistance(i32 km, i32 metres)
{
    upKM->SetValue(km);
    upMetri->SetValue(metres);
}

} // namespace zelvia
