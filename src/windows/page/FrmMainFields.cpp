// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What follows the user's hand on the page: the date's arrows, Escape, the pointers.
#include "core/RunTimeError.h"
#include "diary/ProgramFiles.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "toolkit/SpinKeys.h"
#include "windows/page/FrmMain.h"

#include <QKeyEvent>

namespace zelvia
{

void frmMain::ConnectControls()
{
    lblData->OnClick([this] { lblData_Click(); });
    new SpinKeys(*upGiorno, {upGiorno, upMese}, *upGiorno, [this] {
        lstListaOrdinata_LostFocus();
        FocusSink().SetFocus();
    });
    for (UpDown* spin : {upGiorno, upMese}) {
        spin->BeforeStep = [this] { return LeaveFieldForDate(); };
    }
    upGiorno->DownClick = [this] { upGiorno_DownClick(); };
    upGiorno->UpClick = [this] { upGiorno_UpClick(); };
    upMese->DownClick = [this] { upMese_DownClick(); };
    upMese->UpClick = [this] { upMese_UpClick(); };
    tmrFocus->Tick = [this] { tmrFocus_Timer(); };
    lstListaOrdinata->LostFocus = [this] { lstListaOrdinata_LostFocus(); };
    lstListaOrdinata->KeyPress = [this](int keyAscii) {
        constexpr int escape = 27;
        if (keyAscii == escape) {
            lstListaOrdinata_LostFocus();
        }
    };
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

} // namespace zelvia
