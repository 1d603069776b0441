// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableCalculations.h"

#include "core/Conversions.h"

namespace zelvia
{
namespace
{

i32 LongOf(const Text& box)
{
    return RoundTo<i32>(Val(box));
}

i16 ShortOf(const Text& box)
{
    return RoundTo<i16>(Val(box));
}

bool AtLeastOne(const Text& box)
{
    return Val(box) >= 1;
}

bool IsZero(const Text& box)
{
    return Val(box) == 0;
}

bool HasDistance(const GruppiRiga& riga)
{
    return AtLeastOne(riga.km) || AtLeastOne(riga.metri);
}

bool HasTime(const GruppiRiga& riga)
{
    return AtLeastOne(riga.ore) || AtLeastOne(riga.minuti) || AtLeastOne(riga.secondi);
}

bool HasAverage(const GruppiRiga& riga)
{
    return AtLeastOne(riga.mediaMinuti) || AtLeastOne(riga.mediaSecondi);
}

i32 SecondsOf(const GruppiRiga& riga)
{
    const i32 ore = LongOf(riga.ore);
    const i32 minuti = LongOf(riga.minuti);
    const i32 secondi = LongOf(riga.secondi);
    if (ore >= 1) {
        return (ore * 60 + minuti) * 60 + secondi;
    }
    if (minuti > 0) {
        return minuti * 60 + secondi;
    }
    return secondi >= 1 ? secondi : i32(0);
}

/// Seconds per kilometre: the whole seconds are short arithmetic.
f32 SecondsPerKm(const GruppiRiga& riga)
{
    const i16 interi = ShortOf(riga.mediaMinuti) * 60 + ShortOf(riga.mediaSecondi);
    const auto millesimi = static_cast<f32>(Val(riga.mediaMillesimi));
    return millesimi / 1000.0F + static_cast<f32>(interi.value());
}

i32 MetresOf(const GruppiRiga& riga)
{
    return LongOf(riga.km) * 1000 + LongOf(riga.metri);
}

} // namespace

bool ChiedeMediaKm(const GruppiRiga& riga)
{
    return HasDistance(riga) && HasTime(riga) && IsZero(riga.mediaMinuti) && IsZero(riga.mediaSecondi);
}

bool ChiedeTempo(const GruppiRiga& riga)
{
    return HasDistance(riga) && IsZero(riga.ore) && IsZero(riga.minuti) && IsZero(riga.secondi) && HasAverage(riga);
}

bool ChiedeDistanza(const GruppiRiga& riga)
{
    return IsZero(riga.km) && IsZero(riga.metri) && HasTime(riga) && HasAverage(riga);
}

bool SoloUnGruppo(const GruppiRiga& riga)
{
    const bool average = AtLeastOne(riga.mediaMinuti) && AtLeastOne(riga.mediaSecondi);
    return (HasDistance(riga) ? 1 : 0) + (HasTime(riga) ? 1 : 0) + (average ? 1 : 0) == 1;
}

std::optional<MediaRiga> MediaDi(const GruppiRiga& riga)
{
    const double metriAlSecondo = Quotient<double>(MetresOf(riga).value(), SecondsOf(riga).value());
    const auto velocita = static_cast<f32>(metriAlSecondo * 3.6);
    const f32 passo = Quotient<f32>(60.0F, velocita);
    const i16 minuti = RoundTo<i16>(Fix(static_cast<double>(passo)));
    constexpr int tooSlow = 61;
    if (minuti >= tooSlow) {
        return std::nullopt;
    }
    const f32 resto = (passo - static_cast<f32>(minuti.value())) * 60.0F;
    const i16 secondi = RoundTo<i16>(Fix(static_cast<double>(resto)));
    const f32 millesimi = (resto - static_cast<f32>(secondi.value())) * 1000.0F;
    return MediaRiga{minuti, secondi, Format(static_cast<double>(millesimi), "000.00")};
}

DistanzaRiga DistanzaDi(const GruppiRiga& riga)
{
    const double durata = SecondsOf(riga).value();
    const auto chilometri = static_cast<f32>(Quotient<double>(durata, static_cast<double>(SecondsPerKm(riga))));
    const i32 km = RoundTo<i32>(Fix(static_cast<double>(chilometri)));
    const double resto = (static_cast<double>(chilometri) - km.value()) * 1000.0;
    return {km, RoundTo<i32>(resto)};
}

TempoRiga TempoDi(const GruppiRiga& riga)
{
    const auto metri = static_cast<f32>(MetresOf(riga).value());
    const f32 durata = SecondsPerKm(riga) / 1000.0F * metri;
    const i32 totale = RoundTo<i32>(static_cast<double>(durata));
    const i32 ore = totale.value() / 3600;
    const i32 resto = totale - ore * 3600;
    const i32 minuti = resto.value() / 60;
    return {ore, minuti, resto - minuti * 60};
}

} // namespace zelvia
