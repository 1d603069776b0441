// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the fields of the page share.
#include "core/RunTimeError.h"
#include "diary/ProgramFiles.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "windows/page/FrmMain.h"

#include <QKeyEvent>

namespace zelvia
{

void frmMain::ConnectFields()
{
    auto route = std::make_unique<RouteField>(*this);
    route_ = route.get();
    for (const SelectionList lista : kAllLists) {
        std::unique_ptr<SelectionField>& field = fields_[static_cast<int>(lista)];
        if (lista == SelectionList::Percorso) {
            field = std::move(route);
        } else {
            field = std::make_unique<SelectionField>(*this, lista);
        }
    }
    numbers_.emplace(*this);
    splits_.emplace(*this, numbers_->Splits());
    notes_.emplace(*this);
    dates_.emplace(*this);
    tmrFocus->Tick = [this] { tmrFocus_Timer(); };
    lstListaOrdinata->LostFocus = [this] { lstListaOrdinata_LostFocus(); };
    lstListaOrdinata->KeyPress = [this](int keyAscii) {
        if (keyAscii == kEscape) {
            lstListaOrdinata_LostFocus();
        }
    };
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
    if (event->key() == Qt::Key_Escape) {
        Fire([this] { lstListaOrdinata_LostFocus(); });
    } else {
        Form::keyPressEvent(event);
    }
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

void frmMain::SetDistance(i32 km, i32 metri)
{
    upKM->SetValue(km);
    upMetri->SetValue(metri);
}

} // namespace zelvia
