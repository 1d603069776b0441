// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that restore the lists and blank the day.
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::mnuListaIniziale_Click()
{
    Trap("mnuListaIniziale - ERRORE : ", [this] {
        if (MsgBox(Messages::kFirstLists) == MsgAnswer::OK) {
            InizializzaListe();
            AzzeraPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuListaPrecedente_Click()
{
    Trap("mnuListaPrecedente - ERRORE : ", [this] {
        if (MsgBox(Messages::kSavedLists) == MsgAnswer::OK) {
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
        if (MsgBox(Messages::kBlankDay) == MsgAnswer::OK) {
            AzzeraRecordGiorno(GiornoCorrente);
            FileModificato = 1;
            AzzeraCampi();
            VisualizzaGiorno();
        }
    });
}

} // namespace zelvia
