// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "diary/CategoryStatistics.h"
#include "diary/RecordGiorno.h"
#include "diary/SearchTotals.h"

#include <array>
#include <vector>

namespace zelvia
{

/// The conditions that a run must meet. A date whose day is 0, an empty text and a number of 0 set no condition.
struct CondizioniRicerca {
    i16 GiornoInizio;
    i16 MeseInizio;
    i16 AnnoInizio;
    i16 GiornoFine;
    i16 MeseFine;
    i16 AnnoFine;
    Text CercaPercorso;
    Text CercaLunghezza;
    Text CercaKm; ///< As the statistic of distances writes it.
    Text CercaAndatura;
    Text CercaFondo;
    Text CercaTipo;
    Text CercaStagione;
    Text CercaMeteo;
    Text CercaTemperatura;
    i16 CercaCorridori;
    i16 CercaPeso;
    Text CercaRipetizioni; ///< As the statistic of repetitions writes them.
};

/// The condition on one category: a text or a number.
struct CondizioneCategoria {
    Categoria categoria;
    Text CondizioniRicerca::*testo;
    i16 CondizioniRicerca::*numero = nullptr;
};

/// All twelve, in the order of their buttons.
inline constexpr std::array<CondizioneCategoria, 12> kCondizioni = {{
    {Categoria::Percorso, &CondizioniRicerca::CercaPercorso},
    {Categoria::Lunghezza, &CondizioniRicerca::CercaLunghezza},
    {Categoria::Km, &CondizioniRicerca::CercaKm},
    {Categoria::Andatura, &CondizioniRicerca::CercaAndatura},
    {Categoria::Fondo, &CondizioniRicerca::CercaFondo},
    {Categoria::Tipo, &CondizioniRicerca::CercaTipo},
    {Categoria::Stagione, &CondizioniRicerca::CercaStagione},
    {Categoria::Meteo, &CondizioniRicerca::CercaMeteo},
    {Categoria::Temperatura, &CondizioniRicerca::CercaTemperatura},
    {Categoria::Corridori, nullptr, &CondizioniRicerca::CercaCorridori},
    {Categoria::Peso, nullptr, &CondizioniRicerca::CercaPeso},
    {Categoria::Ripetizioni, &CondizioniRicerca::CercaRipetizioni},
}};

/// An error of a search, under the title of the routine that it belongs to.
struct ErroreRicerca {
    TextView titolo;
    ErroreRunTime errore;
    std::size_t righe; ///< How many lines were listed before it.
};

struct EsitoRicerca {
    TotaliRicerca totali;
    std::vector<Text> righe;           ///< A line for each run found.
    std::vector<ErroreRicerca> errori; ///< In the order in which they arose.
    bool interrotta = false;           ///< The search ended before the totals, with the last of the errors.
};

/// Finds the runs among the days 1..`ultimo` and adds them up; the sums are not carried over yet. `totali` are those of
/// the previous search, emptied. A time or an average that can't be read is reported and left out; a period that is not
/// a date ends the search.
EsitoRicerca CercaCorse(const BoundedArray<RecordGiorno, 0, 366>& giorni, i16 ultimo,
                        const CondizioniRicerca& condizioni, const TotaliRicerca& totali);

/// A run as a line of 43 columns: its distance from column 2 on, its time from 11, its average from 23, or from 22 when
/// `minutiMedia` has two digits, and its date from 33.
Text RigaCorsa(const RecordGiorno& giorno, i16 minutiMedia);

} // namespace zelvia
