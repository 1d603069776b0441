// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RunSearch.h"

#include "core/Conversions.h"
#include "diary/CategoryTexts.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace zelvia
{
namespace
{

struct Periodo {
    std::optional<CalendarDate> inizio;
    std::optional<CalendarDate> fine;
};

std::optional<CalendarDate> DateOf(i16 giorno, i16 mese, i16 anno)
{
    if (giorno <= 0) {
        return std::nullopt;
    }
    return DateValue(PlainText(giorno) + "/" + PlainText(mese) + "/" + PlainText(anno));
}

bool Fulfils(const RecordGiorno& giorno, const CondizioniRicerca& condizioni, const CondizioneCategoria& condizione)
{
    const Statistica& statistica = StatisticaDi(condizione.categoria);
    if (condizione.testo != nullptr) {
        const Text& cercato = condizioni.*condizione.testo;
        return cercato.empty() || SameText(cercato, statistica.testo(giorno));
    }
    const i16 cercato = condizioni.*condizione.numero;
    return cercato == 0 || i32(cercato) == statistica.numero(giorno);
}

bool IsSought(const RecordGiorno& giorno, const CondizioniRicerca& condizioni, const Periodo& periodo)
{
    if ((periodo.inizio && giorno.Data < *periodo.inizio) || (periodo.fine && giorno.Data > *periodo.fine)) {
        return false;
    }
    // A day with no distance is not a run.
    return std::all_of(
               kCondizioni.begin(), kCondizioni.end(),
               [&](const CondizioneCategoria& condizione) { return Fulfils(giorno, condizioni, condizione); }) &&
           giorno.Km + giorno.Metri > 0;
}

/// Overwrites the columns of a line from `column` on, counted from 1; the line keeps its length.
void WriteAt(Text& line, std::size_t column, TextView text)
{
    const std::size_t from = column - 1;
    const std::size_t length = std::min(text.size(), line.size() - from);
    line.replace(from, length, text.substr(0, length));
}

/// Runs a block under the title of its routine; its error is kept. True when there was none.
template <typename Block>
bool Attempt(EsitoRicerca& esito, TextView titolo, Block&& block)
{
    bool passed = true;
    TrapWith(std::forward<Block>(block), [&](const ErroreRunTime& errore) {
        passed = false;
        esito.errori.push_back({titolo, errore, esito.righe.size()});
    });
    return passed;
}

void AddRun(EsitoRicerca& esito, const RecordGiorno& giorno)
{
    TotaliRicerca& totali = esito.totali;
    totali.NumCorse += 1;
    totali.TotKm += i32(giorno.Km);
    totali.TotMetri += i32(giorno.Metri);
    Attempt(esito, "Somma Tempi - ERRORE : ", [&] { SommaTempi(totali, giorno.TempoImpiegato); });
    Attempt(esito, "Somma Media - ERRORE : ", [&] { SommaMedia(totali, giorno.MediaKm); });
    esito.righe.push_back(RigaCorsa(giorno, totali.MinutiMedia));
}

} // namespace

Text RigaCorsa(const RecordGiorno& giorno, i16 minutiMedia)
{
    constexpr std::size_t columns = 43;
    Text riga(columns, ' ');
    WriteAt(riga, 2, TestoKm(giorno));
    WriteAt(riga, 11, giorno.TempoImpiegato);
    WriteAt(riga, minutiMedia <= 9 ? 23 : 22, giorno.MediaKm);
    WriteAt(riga, 33, PlainText(giorno.Data));
    return riga;
}

EsitoRicerca CercaCorse(const BoundedArray<RecordGiorno, 0, 366>& giorni, i16 ultimo,
                        const CondizioniRicerca& condizioni, const TotaliRicerca& totali)
{
    EsitoRicerca esito{totali, {}, {}, false};
    esito.interrotta = !Attempt(esito, "Ricerca Medie - ERRORE : ", [&] {
        const Periodo periodo{DateOf(condizioni.GiornoInizio, condizioni.MeseInizio, condizioni.AnnoInizio),
                              DateOf(condizioni.GiornoFine, condizioni.MeseFine, condizioni.AnnoFine)};
        for (i16 d = 1; d <= ultimo; d += 1) {
            if (IsSought(giorni[d], condizioni, periodo)) {
                AddRun(esito, giorni[d]);
            }
        }
    });
    return esito;
}

} // namespace zelvia
