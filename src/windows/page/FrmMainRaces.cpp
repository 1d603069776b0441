// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar as the page sees it.
#include "core/RunTimeError.h"
#include "diary/CalendarDates.h"
#include "diary/RaceTexts.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::mnuGare_Click()
{
    Trap("mnuGare - ERRORE : ", [this] {
        frmCalendario& calendario = calendario_.Load();
        calendario.show();
        calendario.raise();
        calendario.activateWindow();
    });
}

void frmMain::AssegnaGara()
{
    Trap("AssegnaGara - ERRORE : ", [this] {
        NascondiRiquadriGara();
        i16 riga = GaraDelGiorno(GiornoMese, MeseCorrente, AnnoCorrente);
        if (riga > 0) {
            GiornodellaGara(riga);
        }
    });
}

void frmMain::GiornodellaGara(i16& indice)
{
    Trap("GiornodellaGara - ERRORE : ", [&] {
        TabAllenamentiNonVisibili();
        MostraRiquadriGara();
        const TestiGara testi = TestiDellaGara(indice);
        lblGara->SetCaption(testi.gara);
        lblLocalita->SetCaption(testi.localita);
        lblPartecipanti->SetCaption(testi.partecipanti);
        lblTempoImpiegato->SetCaption(testi.tempo);
        lblRisultato->SetCaption(testi.risultato);
        lblCategoria->SetCaption(testi.categoria);
        lblRisultatoCat->SetCaption(testi.risultatoCat);
        lblLunghezzaGara->SetCaption(testi.lunghezza);
    });
}

void frmMain::ShowRacePanel(bool visible)
{
    for (Picture* picture : {pctCalGara, pctCalLocalita, pctCalLunghezza, pctCalPartecipanti, pctCalTempoImpiegato,
                             pctCalRisultato, pctCalCategoria, pctCalRisCategoria}) {
        picture->SetVisible(visible);
    }
    for (Label* label : {lblGara, lblLocalita, lblPartecipanti, lblTempoImpiegato, lblLunghezzaGara, lblRisultato,
                         lblCategoria, lblRisultatoCat}) {
        label->SetVisible(visible);
    }
    RaiseOrderedList();
}

} // namespace zelvia
