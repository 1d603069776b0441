// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/OrderedTimes.h"

#include "core/RunTimeError.h"
#include "diary/Module1.h"

namespace zelvia
{

using namespace Module1;

namespace
{

/// The list box of the page as a classification writes it.
class PageTimesBox : public TimesBox
{
public:
    explicit PageTimesBox(ListBox& box) : box_(box) {}
    void AddLine(TextView line) override { box_.AddItem(line); }
    void Select(int index) override { box_.SetListIndex(index); }

private:
    ListBox& box_;
};

} // namespace

void OrderedTimes::Begin()
{
    times_.emplace();
    page_.lstListaOrdinata->SetVisible(true);
    for (Button* head : page_.cmdLO) {
        head->SetVisible(true);
    }
    page_.lstListaOrdinata->viewport()->update();
    times_->CreaLista();
}

void OrderedTimes::AddRun(i16 day, const Text& time, const Text& pace, CalendarDate date)
{
    AddRunTo(*times_, day, time, pace, date);
}

void OrderedTimes::AddRunsOf(const Text& route, i16 last)
{
    for (i16 i = 1; i <= last; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (day.Percorso == route) {
            AddRun(day.NumGiorno, day.TempoImpiegato, day.MediaKm, day.Data);
        }
    }
}

void OrderedTimes::Fill(bool place)
{
    PageTimesBox box(*page_.lstListaOrdinata);
    times_->Ordina();
    times_->NuovaListalst(&box);
    times_->RiempiListalst();
    if (place) {
        times_->Posizione();
    }
    times_->NuovaListalst(nullptr);
}

void OrderedTimes::ListavOrdinata(const Text& route)
{
    Trap("ListavOrdinata - ERRORE : ", [&] {
        Begin();
        AddRunsOf(route, GiornoCorrente - 1);
        AddRun(GiornoCorrente, page_.lblOutTempoImpiegato->Caption(), page_.lblOutMediaKM->Caption(), DataCorrente);
        Fill(true);
    });
}

void OrderedTimes::ListavOrdinataDue(const Text& route)
{
    Trap("ListavOrdinataDue - ERRORE : ", [&] {
        Begin();
        AddRunsOf(route, GiornoCorrente);
        Fill(false);
    });
}

void OrderedTimes::Raise()
{
    page_.lstListaOrdinata->raise();
    for (Button* head : page_.cmdLO) {
        head->raise();
    }
}

void OrderedTimes::Close()
{
    page_.lstListaOrdinata->Clear();
    times_.reset();
    page_.lstListaOrdinata->SetVisible(false);
    for (Button* head : page_.cmdLO) {
        head->SetVisible(false);
    }
}

} // namespace zelvia
