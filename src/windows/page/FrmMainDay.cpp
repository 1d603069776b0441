// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A day between its record and the controls.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::VisualizzaGiorno()
{
    Trap("VisualizzaGiorno - ERRORE : ", [this] { DayOnPage(*this).Show(Giorni[GiornoCorrente]); });
}

void frmMain::AzzeraCampi()
{
    Trap("AzzeraCampi - ERRORE : ", [this] { DayOnPage(*this).Blank(Giorni[GiornoCorrente]); });
}

void frmMain::AssegnaCampi()
{
    Trap("AssegnaCampi - ERRORE : ", [this] {
        if (FileModificato == 0) {
            ControllaSave(FileModificato);
        }
        RecordGiorno& giorno = Giorni[GiornoCorrente];
        giorno.NumGiorno = GiornoCorrente;
        giorno.Data = DataCorrente;
        DayOnPage(*this).Commit(giorno);
    });
}

void frmMain::ControllaSave(i16& esito)
{
    Trap("ControllaSave - ERRORE : ", [&] {
        const DayOnPage day(*this);
        const RecordGiorno& giorno = Giorni[GiornoCorrente];
        esito = day.Differs(giorno) ? 1 : 0;
        if (day.SplitsDiffer(giorno)) {
            esito = 1;
        }
    });
}

void frmMain::DatiAnno()
{
    Trap("DatiAnno - ERRORE : ", [this] {
        UltimoPeso = 0;
        KmAnno = 0;
        GiorniCorseAnno = GareAnno = 0;
        i32 metri = 0;
        for (i16 i = 1; i <= GiornoCorrente; i += 1) {
            const RecordGiorno& giorno = Giorni[i];
            if (giorno.Peso > 0) {
                UltimoPeso = giorno.Peso;
            }
            if (giorno.Km > 0) {
                KmAnno += giorno.Km;
            }
            if (giorno.Metri > 0) {
                metri += giorno.Metri;
            }
            if (SameText(Trim(giorno.Tipo), "Gara")) {
                GareAnno += 1;
            } else if (CampoNonVuoto(giorno.Tipo)) {
                GiorniCorseAnno += 1;
            }
        }
        KmAnno += metri.value() / 1000;
        lblNumKMPercorsi->SetCaption(Format(KmAnno, "###,###"));
        lblNumGiorniCorseAnno->SetCaption(PlainText(GiorniCorseAnno));
        lblNumGare->SetCaption(PlainText(GareAnno));
    });
}

} // namespace zelvia
