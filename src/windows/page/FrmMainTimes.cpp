// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Time taken, average per kilometre and the sorted list of a route's times.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/TimeAndPace.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

/// The list box of the page as a classification writes it.
class CasellaPagina : public CasellaTempi
{
public:
    explicit CasellaPagina(ListBox& casella) : casella_(casella) {}
    void AggiungiRiga(TextView riga) override { casella_.AddItem(riga); }
    void Seleziona(int indice) override { casella_.SetListIndex(indice); }

private:
    ListBox& casella_;
};

Orario Reading(const UpDown& ore, const UpDown& minuti, const UpDown& secondi)
{
    return {ore.Value(), minuti.Value(), secondi.Value()};
}

} // namespace

Orario frmMain::StartTime() const
{
    return Reading(*upOraInizio, *upMinutiInizio, *upSecondiInizio);
}

Orario frmMain::EndTime() const
{
    return Reading(*upOraFine, *upMinutiFine, *upSecondiFine);
}

i16 frmMain::ControlloTempiKm()
{
    i16 risultato = 0;
    Trap("ControlloTempiKm - ERRORE : ", [&] {
        const bool distanza = upKM->Value() >= 1 || upMetri->Value() >= 1 || upMetro->Value() >= 1;
        const EsitoTempi esito = ControllaTempi(distanza, StartTime(), EndTime());
        risultato = static_cast<int>(esito.calcolo);
        if (esito.azzera) {
            Giorni[GiornoCorrente].TempoImpiegato.clear();
            Giorni[GiornoCorrente].MediaKm.clear();
            lblOutTempoImpiegato->SetCaption("0:00:00");
            lblOutMediaKM->SetCaption("0:00");
        }
        if (!esito.avviso.empty()) {
            MsgBox(esito.avviso, MsgButtons::OK, MsgIcon::Exclamation);
        }
    });
    return risultato;
}

void frmMain::TempoImpiegato()
{
    Trap("TempoImpiegato - ERRORE : ", [this] {
        const Orario trascorso = ShowTimeTaken();
        MediaKm(trascorso.ore, trascorso.minuti, trascorso.secondi);
        lstListaOrdinata->Clear();
        ListavOrdinata(Campo(ListaScelta::Percorso).lblImmis->Caption());
    });
}

void frmMain::tempo()
{
    Trap("tempo - ERRORE : ", [this] { ShowTimeTaken(); });
}

Orario frmMain::ShowTimeTaken()
{
    const Orario trascorso = TempoTrascorso(StartTime(), EndTime());
    lblOutTempoImpiegato->SetCaption(TestoTempo(trascorso));
    return trascorso;
}

void frmMain::MediaKm(i32 ore, i32 minuti, i32 secondi)
{
    Trap("MediaKm - ERRORE : ", [&] {
        if (const auto media = CalcolaMedia(lblImmisMetri->Caption(), {ore, minuti, secondi})) {
            lblOutMediaKM->SetCaption(*media);
        } else {
            MsgBox("OLTRE 60 MINUTI                 ", MsgButtons::OK, MsgIcon::Exclamation);
        }
    });
}

void frmMain::BeginOrderedList()
{
    ListaTempi.emplace();
    lstListaOrdinata->SetVisible(true);
    for (Button* head : cmdLO) {
        head->SetVisible(true);
    }
    lstListaOrdinata->viewport()->update();
    ListaTempi->CreaLista();
}

void frmMain::AddRun(i16 giorno, const Text& tempoRun, const Text& media, CalendarDate dataRun)
{
    AggiungiCorsa(*ListaTempi, giorno, tempoRun, media, dataRun);
}

void frmMain::AddRunsOf(const Text& percorso, i16 ultimo)
{
    for (i16 i = 1; i <= ultimo; i += 1) {
        const RecordGiorno& giorno = Giorni[i];
        if (giorno.Percorso == percorso) {
            AddRun(giorno.NumGiorno, giorno.TempoImpiegato, giorno.MediaKm, giorno.Data);
        }
    }
}

void frmMain::FillOrderedList(bool posizione)
{
    CasellaPagina casella(*lstListaOrdinata);
    ListaTempi->Ordina();
    ListaTempi->NuovaListalst(&casella);
    ListaTempi->RiempiListalst();
    if (posizione) {
        ListaTempi->Posizione();
    }
    ListaTempi->NuovaListalst(nullptr);
}

void frmMain::ListavOrdinata(const Text& percorso)
{
    Trap("ListavOrdinata - ERRORE : ", [&] {
        BeginOrderedList();
        AddRunsOf(percorso, GiornoCorrente - 1);
        AddRun(GiornoCorrente, lblOutTempoImpiegato->Caption(), lblOutMediaKM->Caption(), DataCorrente);
        FillOrderedList(true);
    });
}

void frmMain::ListavOrdinataDue(const Text& percorso)
{
    Trap("ListavOrdinataDue - ERRORE : ", [&] {
        BeginOrderedList();
        AddRunsOf(percorso, GiornoCorrente);
        FillOrderedList(false);
    });
}

void frmMain::mnuListaWOrdinata_Click()
{
    Trap("mnuListaWOrdinata - ERRORE : ", [this] {
        const ListBox& lst = *Campo(ListaScelta::Percorso).lst;
        lstListaOrdinata->Clear();
        ListavOrdinataDue(lst.List(lst.ListIndex()));
    });
}

void frmMain::RaiseOrderedList()
{
    lstListaOrdinata->raise();
    for (Button* head : cmdLO) {
        head->raise();
    }
}

void frmMain::lstListaOrdinata_LostFocus()
{
    lstListaOrdinata->Clear();
    ListaTempi.reset();
    lstListaOrdinata->SetVisible(false);
    for (Button* head : cmdLO) {
        head->SetVisible(false);
    }
}

} // namespace zelvia
