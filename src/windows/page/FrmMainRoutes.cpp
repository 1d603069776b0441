// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The routes' descriptions as the page sees them.
#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::SalvaNomePercorso()
{
    Trap("SalvaNomePercorso - ERRORE : ", [this] {
        const Text nome = Campo(SelectionList::Percorso).txt->Content();
        if (nome.empty() || RoutePlace(nome).value_or(0) > 0) {
            return;
        }
        const i16 libero = LowestFreePlace();
        if (libero == 0) {
            MsgBox(Messages::kTooManyRoutes);
            return;
        }
        NomiPercorso[libero] = nome;
        ShowRoute(nome);
    });
}

i16 frmMain::NumeroPercorso()
{
    return TrapValue("NumeroPercorso - ERRORE : ", i16(0), [] { return RoutePlace(PercorsoCorrente).value_or(0); });
}

void frmMain::mnuDescrizionePercorso_Click()
{
    Trap("mnuDescrizionePercorso - ERRORE : ", [this] {
        // Closing the field may have opened the description of the name typed there.
        if (desPercorso_.Loaded()) {
            return;
        }
        const ListBox& lst = *Campo(SelectionList::Percorso).lst;
        const Text nome = lst.List(lst.ListIndex());
        if (!nome.empty()) {
            PercorsoCorrente = nome;
        }
        ShowRoute(nome);
    });
}

void frmMain::ShowRoute(const Text& nome)
{
    frmDesPercorso& window = desPercorso_.Load(this, *this);
    window.show();
    window.setWindowTitle(ToQString("Percorso : " + nome));
}

void frmMain::SetDistance(i32 km, i32 metri)
{
    upKM->SetValue(km);
    upMetri->SetValue(metri);
}

} // namespace zelvia
