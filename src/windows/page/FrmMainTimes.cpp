// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Time taken and average per kilometre.
#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/TimeAndPace.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

ClockTime Reading(const UpDown& ore, const UpDown& minuti, const UpDown& secondi)
{
    return {ore.Value(), minuti.Value(), secondi.Value()};
}

} // namespace

ClockTime frmMain::StartTime() const
{
    return Reading(*upOraInizio, *upMinutiInizio, *upSecondiInizio);
}

ClockTime frmMain::EndTime() const
{
    return Reading(*upOraFine, *upMinutiFine, *upSecondiFine);
}

i16 frmMain::ControlloTempiKm()
{
    i16 risultato = 0;
    Trap("ControlloTempiKm - ERRORE : ", [&] {
        const bool distanza = upKM->Value() >= 1 || upMetri->Value() >= 1 || upMetro->Value() >= 1;
        const TimesCheck esito = CheckTimes(distanza, StartTime(), EndTime());
        risultato = static_cast<int>(esito.calculation);
        if (esito.blanks) {
            Giorni[GiornoCorrente].TempoImpiegato.clear();
            Giorni[GiornoCorrente].MediaKm.clear();
            lblOutTempoImpiegato->SetCaption("0:00:00");
            lblOutMediaKM->SetCaption("0:00");
        }
        if (esito.warning != nullptr) {
            MsgBox(*esito.warning);
        }
    });
    return risultato;
}

void frmMain::TempoImpiegato()
{
    Trap("TempoImpiegato - ERRORE : ", [this] {
        const ClockTime trascorso = ShowTimeTaken();
        MediaKm(trascorso.hours, trascorso.minutes, trascorso.seconds);
        lstListaOrdinata->Clear();
        ListavOrdinata(Campo(SelectionList::Percorso).lblImmis->Caption());
    });
}

void frmMain::tempo()
{
    Trap("tempo - ERRORE : ", [this] { ShowTimeTaken(); });
}

ClockTime frmMain::ShowTimeTaken()
{
    const ClockTime trascorso = ElapsedTime(StartTime(), EndTime());
    lblOutTempoImpiegato->SetCaption(TimeText(trascorso));
    return trascorso;
}

void frmMain::MediaKm(i32 ore, i32 minuti, i32 secondi)
{
    Trap("MediaKm - ERRORE : ", [&] {
        if (const auto media = AverageText(lblImmisMetri->Caption(), {ore, minuti, secondi})) {
            lblOutMediaKM->SetCaption(*media);
        } else {
            MsgBox(Messages::kPaceTooSlow);
        }
    });
}

void frmMain::mnuListaWOrdinata_Click()
{
    Trap("mnuListaWOrdinata - ERRORE : ", [this] {
        const ListBox& lst = *Campo(SelectionList::Percorso).lst;
        lstListaOrdinata->Clear();
        ListavOrdinataDue(lst.List(lst.ListIndex()));
    });
}

} // namespace zelvia
