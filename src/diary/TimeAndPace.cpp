// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TimeAndPace.h"

#include "core/Conversions.h"

namespace zelvia
{
namespace
{

constexpr TextView kEndBeforeStart = "L'ORA FINE E' MINORE DELL'ORA INIZIO         ";
constexpr TextView kEndBeforeStartBySeconds = "L'ORA FINE E' MINORE DELL'ORA INIZIO        ";
constexpr TextView kEndEqualsStart = "L'ORA FINE E' UGUALE ALL'ORA INIZIO        ";

TextView Warning(const Orario& inizio, const Orario& fine)
{
    if (fine.ore != inizio.ore) {
        return fine.ore < inizio.ore ? kEndBeforeStart : TextView();
    }
    if (fine.minuti != inizio.minuti) {
        return fine.minuti < inizio.minuti ? kEndBeforeStart : TextView();
    }
    if (fine.secondi != inizio.secondi) {
        return fine.secondi < inizio.secondi ? kEndBeforeStartBySeconds : TextView();
    }
    return kEndEqualsStart;
}

i32 SecondsOf(const Orario& tempo)
{
    if (tempo.ore >= 1) {
        return (tempo.ore * 60 + tempo.minuti) * 60 + tempo.secondi;
    }
    if (tempo.ore == 0 && tempo.minuti > 0) {
        return tempo.minuti * 60 + tempo.secondi;
    }
    return tempo.ore == 0 && tempo.minuti == 0 && tempo.secondi > 0 ? tempo.secondi : i32(0);
}

} // namespace

EsitoTempi ControllaTempi(bool distanza, const Orario& inizio, const Orario& fine)
{
    const bool haFine = fine.ore >= 1 || fine.minuti >= 1 || fine.secondi >= 1;
    if (!haFine) {
        return {Calcolo::Niente, true, {}};
    }
    return {distanza ? Calcolo::TempoEMedia : Calcolo::SoloTempo, !distanza, Text(Warning(inizio, fine))};
}

Orario TempoTrascorso(const Orario& inizio, const Orario& fine)
{
    Orario tempo{0, 0, 0};
    if (fine.secondi < inizio.secondi) {
        tempo.secondi = 60 - inizio.secondi + fine.secondi;
        tempo.minuti -= 1;
    } else {
        tempo.secondi = fine.secondi - inizio.secondi;
    }
    if (fine.minuti < inizio.minuti) {
        tempo.minuti = 60 - inizio.minuti + tempo.minuti + fine.minuti;
        tempo.ore -= 1;
    } else {
        tempo.minuti = fine.minuti - inizio.minuti + tempo.minuti;
    }
    // The minutes were equal and a second was borrowed.
    if (tempo.minuti < 0) {
        tempo.minuti = 60 - inizio.minuti + tempo.minuti + fine.minuti;
        tempo.ore -= 1;
    }
    tempo.ore = fine.ore - inizio.ore + tempo.ore;
    return tempo;
}

Text TestoTempo(const Orario& tempo)
{
    return PlainText(tempo.ore) + ":" + Format(tempo.minuti, "00") + ":" + Format(tempo.secondi, "00");
}

std::optional<Pace> PaceOf(i32 metres, i32 seconds)
{
    const double metresPerSecond = Quotient<double>(metres.value(), seconds.value());
    const auto kilometresPerHour = static_cast<f32>(metresPerSecond * 3.6);
    const f32 pace = Quotient<f32>(60.0F, kilometresPerHour);
    const i16 minutes = RoundTo<i16>(Fix(static_cast<double>(pace)));
    constexpr int slowest = 60;
    if (minutes > slowest) {
        return std::nullopt;
    }
    const f32 rest = (pace - static_cast<f32>(minutes.value())) * 60.0F;
    const i16 wholeSeconds = RoundTo<i16>(Fix(static_cast<double>(rest)));
    return Pace{minutes, wholeSeconds, (rest - static_cast<f32>(wholeSeconds.value())) * 1000.0F};
}

std::optional<Text> CalcolaMedia(TextView distanza, const Orario& tempo)
{
    const f32 kilometres = LocaleSingle(distanza);
    const std::optional<Pace> pace = PaceOf(RoundTo<i32>(static_cast<double>(kilometres * 1000.0F)), SecondsOf(tempo));
    if (!pace) {
        return std::nullopt;
    }
    return Format(pace->minutes, pace->minutes > 0 ? "##:" : "0:") + Format(pace->seconds, "00");
}

} // namespace zelvia
