// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/GruppoSpin.h"

#include "core/RunTimeError.h"
#include "toolkit/SpinKeys.h"
#include "windows/page/FrmMain.h"

#include <algorithm>

namespace zelvia
{

GruppoSpin::GruppoSpin(frmMain& page, Dati dati) : page_(page), dati_(std::move(dati))
{
    for (const Valore& valore : dati_.valori) {
        valore.label->OnClick([this, &valore] {
            Trap(valore.titolo + " - ERRORE : ", [&] {
                if (valore.prova->Visible()) {
                    page_.FocusSink().SetFocus();
                } else {
                    page_.FollowInTabOrder(*valore.label);
                    Apri(valore.apertura);
                }
            });
        });
    }
    dati_.didascalia->OnClick(
        [this] { Trap(dati_.titoloDidascalia + " - ERRORE : ", [this] { page_.FocusSink().SetFocus(); }); },
        KeyReach::MouseOnly);
    dati_.fuoco->LostFocus = [this] { Chiudi(); };
    ConnectKeys();
}

void GruppoSpin::ConnectKeys()
{
    std::vector<UpDown*> spins;
    for (Control* control : dati_.controlli) {
        if (auto* spin = dynamic_cast<UpDown*>(control)) {
            spins.push_back(spin);
        }
    }
    std::sort(spins.begin(), spins.end(), [](const UpDown* a, const UpDown* b) { return a->x() < b->x(); });
    const auto* first = dynamic_cast<UpDown*>(dati_.fuoco);
    new SpinKeys(dati_.fuoco->Widget(), spins, first != nullptr ? *first : *spins.front(),
                 [this] { page_.FocusSink().SetFocus(); });
}

void GruppoSpin::Mostra(bool visible)
{
    for (Control* control : dati_.controlli) {
        control->SetVisible(visible);
    }
}

void GruppoSpin::Apri(const Text& apertura)
{
    Trap(apertura + " - ERRORE : ", [this] {
        Mostra(true);
        try {
            page_.EnterField(*dati_.fuoco);
        } catch (...) {
            // Without the focus nothing would ever close it.
            Mostra(false);
            throw;
        }
        if (dati_.aperto) {
            dati_.aperto();
        }
    });
}

void GruppoSpin::Chiudi()
{
    Mostra(false);
    if (dati_.chiuso) {
        dati_.chiuso();
    }
    page_.CursoreNormale();
}

} // namespace zelvia
