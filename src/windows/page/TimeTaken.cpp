// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/TimeTaken.h"

#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"

namespace zelvia
{

using namespace Module1;

namespace
{

ClockTime Reading(const UpDown& hours, const UpDown& minutes, const UpDown& seconds)
{
    return {hours.Value(), minutes.Value(), seconds.Value()};
}

} // namespace

ClockTime TimeTaken::Start() const
{
    return Reading(*page_.upOraInizio, *page_.upMinutiInizio, *page_.upSecondiInizio);
}

ClockTime TimeTaken::End() const
{
    return Reading(*page_.upOraFine, *page_.upMinutiFine, *page_.upSecondiFine);
}

i16 TimeTaken::ControlloTempiKm()
{
    i16 result = 0;
    Trap("ControlloTempiKm - ERRORE : ", [&] {
        const bool distance = page_.upKM->Value() >= 1 || page_.upMetri->Value() >= 1 || page_.upMetro->Value() >= 1;
        const TimesCheck outcome = CheckTimes(distance, Start(), End());
        result = static_cast<int>(outcome.calculation);
        if (outcome.blanks) {
            Giorni[GiornoCorrente].TempoImpiegato.clear();
            Giorni[GiornoCorrente].MediaKm.clear();
            page_.lblOutTempoImpiegato->SetCaption("0:00:00");
            page_.lblOutMediaKM->SetCaption("0:00");
        }
        if (outcome.warning != nullptr) {
            MsgBox(*outcome.warning);
        }
    });
    return result;
}

void TimeTaken::TempoImpiegato()
{
    Trap("TempoImpiegato - ERRORE : ", [this] {
        const ClockTime taken = Show();
        MediaKm(taken.hours, taken.minutes, taken.seconds);
        page_.lstListaOrdinata->Clear();
        times_.ListavOrdinata(page_.ListField(SelectionList::Percorso).lblImmis->Caption());
    });
}

void TimeTaken::tempo()
{
    Trap("tempo - ERRORE : ", [this] { Show(); });
}

ClockTime TimeTaken::Show()
{
    const ClockTime taken = ElapsedTime(Start(), End());
    page_.lblOutTempoImpiegato->SetCaption(TimeText(taken));
    return taken;
}

void TimeTaken::MediaKm(i32 hours, i32 minutes, i32 seconds)
{
    Trap("MediaKm - ERRORE : ", [&] {
        if (const auto pace = AverageText(page_.lblImmisMetri->Caption(), {hours, minutes, seconds})) {
            page_.lblOutMediaKM->SetCaption(*pace);
        } else {
            MsgBox(Messages::kPaceTooSlow);
        }
    });
}

} // namespace zelvia
