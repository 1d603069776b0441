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
    explicit PageTimesBox(ListBox& casella) : casella_(casella) {}
    void AddLine(TextView riga) override { casella_.AddItem(riga); }
    void Select(int indice) override { casella_.SetListIndex(indice); }

private:
    ListBox& casella_;
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

void OrderedTimes::AddRun(i16 giorno, const Text& tempoRun, const Text& media, CalendarDate dataRun)
{
    AddRunTo(*times_, giorno, tempoRun, media, dataRun);
}

void OrderedTimes::AddRunsOf(const Text& percorso, i16 ultimo)
{
    for (i16 i = 1; i <= ultimo; i += 1) {
        const RecordGiorno& giorno = Giorni[i];
        if (giorno.Percorso == percorso) {
            AddRun(giorno.NumGiorno, giorno.TempoImpiegato, giorno.MediaKm, giorno.Data);
        }
    }
}

void OrderedTimes::Fill(bool posizione)
{
    PageTimesBox casella(*page_.lstListaOrdinata);
    times_->Ordina();
    times_->NuovaListalst(&casella);
    times_->RiempiListalst();
    if (posizione) {
        times_->Posizione();
    }
    times_->NuovaListalst(nullptr);
}

void OrderedTimes::ListavOrdinata(const Text& percorso)
{
    Trap("ListavOrdinata - ERRORE : ", [&] {
        Begin();
        AddRunsOf(percorso, GiornoCorrente - 1);
        AddRun(GiornoCorrente, page_.lblOutTempoImpiegato->Caption(), page_.lblOutMediaKM->Caption(), DataCorrente);
        Fill(true);
    });
}

void OrderedTimes::ListavOrdinataDue(const Text& percorso)
{
    Trap("ListavOrdinataDue - ERRORE : ", [&] {
        Begin();
        AddRunsOf(percorso, GiornoCorrente);
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
