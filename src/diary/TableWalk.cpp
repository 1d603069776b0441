// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableWalk.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"

#include <tuple>

namespace zelvia
{
namespace
{

i16 Parsed(TextView text)
{
    return RoundTo<i16>(Val(text));
}

struct TempoGiorno {
    i16 ore;
    i16 minuti;
    i16 secondi;
};

/// A time as its text tells it; without two separators there is none.
TempoGiorno TimeOf(TextView text)
{
    constexpr TextView separators = ".:";
    const auto first = text.find_first_of(separators);
    const auto second = first == TextView::npos ? first : text.find_first_of(separators, first + 1);
    if (second == TextView::npos) {
        return {};
    }
    return {Parsed(text.substr(0, first)), Parsed(text.substr(first + 1, second - first - 1)),
            Parsed(text.substr(second + 1))};
}

struct MediaGiorno {
    i16 minuti;
    i16 secondi;
};

MediaGiorno AverageOf(TextView text)
{
    const auto separator = text.find_first_of(",:");
    if (separator == TextView::npos) {
        return {};
    }
    return {Parsed(text.substr(0, separator)), Parsed(text.substr(separator + 1))};
}

/// A demand of the row against what the day holds.
struct Gruppo {
    bool rigaVuota;
    bool giornoVuoto;
    bool fallito; ///< Counts only when the row is not empty.
};

Gruppo Distance(const RecordGiorno& giorno, const RigaPiano& riga)
{
    return {riga.km == 0 && riga.metri == 0, giorno.Km == 0 && giorno.Metri == 0,
            std::tie(riga.km, riga.metri) > std::tie(giorno.Km, giorno.Metri)};
}

Gruppo Time(const RecordGiorno& giorno, const RigaPiano& riga)
{
    const TempoGiorno run = TimeOf(giorno.TempoImpiegato);
    return {riga.ore == 0 && riga.minuti == 0 && riga.secondi == 0, run.ore == 0 && run.minuti == 0 && run.secondi == 0,
            std::tie(riga.ore, riga.minuti, riga.secondi) > std::tie(run.ore, run.minuti, run.secondi)};
}

Gruppo Average(const RecordGiorno& giorno, const RigaPiano& riga)
{
    const MediaGiorno run = AverageOf(giorno.MediaKm);
    const bool none = run.minuti == 0 && run.secondi == 0;
    return {riga.mediaMinuti == 0 && riga.mediaSecondi == 0, none,
            none || std::tie(riga.mediaMinuti, riga.mediaSecondi) < std::tie(run.minuti, run.secondi)};
}

Gruppo SameClass(const Text& giorno, const Text& riga)
{
    return {!CampoNonVuoto(riga), !CampoNonVuoto(giorno), !SameText(Trim(giorno), Trim(riga))};
}

Gruppo Repetitions(const RecordGiorno& giorno, const RigaPiano& riga)
{
    const bool tooLittle = riga.ripetVolte > giorno.Ripetizioni || riga.ripetDistanza > giorno.RipetizioniDistanza;
    const bool tooSlow =
        std::tie(riga.ripetQuante, riga.ripetTempi) < std::tie(giorno.RipetizioniQuante, giorno.RipetizioniTempi);
    return {riga.ripetVolte == 0, giorno.Ripetizioni == 0, riga.ripetVolte > 0 && (tooLittle || tooSlow)};
}

} // namespace

RigaPiano RigaDellaTabella(i16 riga)
{
    using namespace Module1;
    return {TabKm[riga],        TabMetri[riga],       TabOre[riga],           TabMinuti[riga],
            TabSecondi[riga],   TabMediaMinuti[riga], TabMediaSecondi[riga],  TabAndatura[riga],
            TabFondo[riga],     TabRipetVolte[riga],  TabRipetDistanza[riga], TabRipetQuante[riga],
            TabRipetTempi[riga]};
}

i16 ConfrontaAllenamento(const RecordGiorno& giorno, const RigaPiano& riga)
{
    i16 falliti = 0;
    bool rigaVuota = true;
    bool giornoVuoto = true;
    for (const Gruppo& gruppo :
         {Distance(giorno, riga), Time(giorno, riga), Average(giorno, riga), SameClass(giorno.Modo, riga.andatura),
          SameClass(giorno.Fondo, riga.fondo), Repetitions(giorno, riga)}) {
        rigaVuota = rigaVuota && gruppo.rigaVuota;
        giornoVuoto = giornoVuoto && gruppo.giornoVuoto;
        if (!gruppo.rigaVuota && gruppo.fallito) {
            falliti += 1;
        }
    }
    if (rigaVuota) {
        return giornoVuoto ? 0 : 1;
    }
    return falliti;
}

namespace Module1
{

void ControlloAllenamento(i16 giorno, i16 riga, i16& esito)
{
    esito = TrapValue("ControlloAllenamento - ERRORE : ", esito,
                      [&] { return ConfrontaAllenamento(Giorni[giorno], RigaDellaTabella(riga)); });
}

EsitoCammino CamminaTabella()
{
    constexpr int allBehind = 32;
    IndiceTabella = 1;
    if (DataCorrente < TabDataInizio) {
        return {EsitoCammino::Stato::PrimaDellInizio, 0};
    }
    i16 esito = 0;
    for (i16 giorno = TabDataInizio.DayOfYear(); giorno <= GiornoCorrente; giorno += 1) {
        if (Giorni[giorno].Data < TabDataInizio) {
            continue;
        }
        if (IndiceTabella >= allBehind) {
            IndiceTabella = 1;
            return {EsitoCammino::Stato::Finita, 0};
        }
        ControlloAllenamento(giorno, IndiceTabella, esito);
        if (esito == 0) {
            IndiceTabella += 1;
        }
    }
    return {EsitoCammino::Stato::InCorso, esito != 0 ? IndiceTabella : IndiceTabella - 1};
}

} // namespace Module1
} // namespace zelvia
