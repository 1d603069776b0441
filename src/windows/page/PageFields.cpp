// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageFields.h"

namespace zelvia
{
namespace
{

using namespace PageLayout;

using P = PageControls;
using R = RecordGiorno;

constexpr ListRow kLists[] = {
    {SelectionList::Percorso, "Percorso ", Percorso},
    {SelectionList::Lunghezza, "Lunghezza", Lunghezza},
    {SelectionList::Modo, "Andatura ", Andatura},
    {SelectionList::Fondo, "Terreno", Terreno},
    {SelectionList::Tipo, "Tipo", Tipo},
    {SelectionList::Stagione, "Stagione", Stagione},
    {SelectionList::TempoAtm, "Meteo", Meteo},
    {SelectionList::Temperatura, "Temperatura", Temperatura},
};

// clang-format off
const NumberRow kNumbers[] = {
    {Km, &P::lblKm, "Km", "Km",
     {{{{&P::lblImmisMetri, "ImmisMetri", "0,0", {}, {}, 1}},
       {{&P::upKM, "KM", "chilometri", &R::Km},
        {&P::upMetri, "Metri", "metri, a decine", &R::Metri, 0, {0, 990, 10}},
        {&P::upMetro, "Metro", "metri", {}, 0, {0, 9}}},
       1, Then::Distance}}},
    {OraInizio, &P::lblOraInizio, "OraInizio", "Ora Inizio",
     {{{{&P::lblImmisOraInizio, "ImmisOraInizio", "0:00:00", {}, {}, 1}},
       {{&P::upOraInizio, "OraInizio", "ore", &R::OraInizio},
        {&P::upMinutiInizio, "MinutiInizio", "minuti", &R::MinutiInizio},
        {&P::upSecondiInizio, "SecondiInizio", "secondi", &R::SecondiInizio}},
       0, Then::Times}}},
    {OraFine, &P::lblOraFine, "OraFine", "Ora Fine",
     {{{{&P::lblImmisOraFine, "ImmisOraFine", "0:00:00", {}, {}, 1, "Orafine"}},
       {{&P::upOraFine, "OraFine", "ore", &R::OraFine},
        {&P::upMinutiFine, "MinutiFine", "minuti", &R::MinutiFine},
        {&P::upSecondiFine, "SecondiFine", "secondi", &R::SecondiFine}},
       0, Then::Times}}},
    {Tempo, nullptr, {}, {}, {{{{&P::lblOutTempoImpiegato, "OutTempoImpiegato", "0:00:00", "Tempo impiegato"}}}}},
    {Media, nullptr, {}, {}, {{{{&P::lblOutMediaKM, "OutMediaKM", "0:00", "Media al chilometro"}}}}},
    {Corridori, &P::lblCorridori, "Corridori", "Corridori",
     {{{{&P::lblImmisCorridori, "ImmisCorridori", "1"}},
       {{&P::upCorridori, "Corridori", "corridori", &R::Corridori, 1}}}}},
    {Peso, &P::lblPeso, "Peso", "Peso",
     {{{{&P::lblImmisPeso, "ImmisPeso", "0"}},
       {{&P::upPeso, "Peso", "chilogrammi", &R::Peso, 30}},
       0, Then::LastWeight}}},
    {Ripetizioni, &P::lblRipetizioni, "Ripetizioni", "Ripetizioni",
     {{{{&P::lblRipetizioniVolte, "RipetizioniVolte", "0", "Ripetizioni, quante volte", kVolte}},
       {{&P::upRipetizioni, "Ripetizioni", "volte", &R::Ripetizioni}}},
      {{{&P::lblRipetizioniDistanza, "RipetizioniDistanza", "00", "Ripetizioni, metri di ognuna", kDistanza}},
       {{&P::upRipetizioniDistanza, "RipetizioniDistanza", "metri", &R::RipetizioniDistanza}}},
      {{{&P::lblRipetizioniQuante, "RipetizioniQuante", "0:00", "Ripetizioni, tempo di ognuna", kQuante}},
       {{&P::upRipetizioniQuante, "RipetizioniQuante", "minuti", &R::RipetizioniQuante},
        {&P::upRipetizioniTempi, "RipetizioniTempi", "secondi", &R::RipetizioniTempi}}}}},
    {Parziali, &P::lblTempoKm, "TempoKm", "Tempi Km",
     {{{{&P::lblImmisTempoKM, "ImmisTempoKM", "0", "Tempi Km, chilometro", kTempoKM, 0, "ImmisTempoKm",
         "ImmisTempoKm"},
        {&P::lblImmisTempoMinuti, "ImmisTempoMinuti", "00:00:00", "Tempi Km, tempo", kTempoMinuti, 2}},
       {{&P::upTempoKM, "TempoKM", "chilometro", {}, 0, {0, 100}},
        {&P::upTempoOre, "TempoOre", "ore", {}, 0, {0, 24}},
        {&P::upTempoMinuti, "TempoMinuti", "minuti", {}, 0, {0, 59}},
        {&P::upTempoSecondi, "TempoSecondi", "secondi", {}, 0, {0, 59}}},
       0, Then::Splits}}},
};
// clang-format on

} // namespace

std::span<const ListRow> ListRows()
{
    return kLists;
}

std::span<const NumberRow> NumberRows()
{
    return kNumbers;
}

} // namespace zelvia
