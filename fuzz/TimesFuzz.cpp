// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Time taken and average per kilometre of a day: six parts of the clock; the rest is the caption of the distance.
#include "Harness.h"
#include "core/Conversions.h"
#include "diary/TimeAndPace.h"

#include <cmath>
#include <cstdlib>
#include <tuple>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

/// Mostly times of day; occasionally anything a long holds.
Orario TakeTime(Bytes& input)
{
    if (input.Take<std::uint8_t>() == 255) {
        return {input.Take<std::int32_t>(), input.Take<std::int32_t>(), input.Take<std::int32_t>()};
    }
    return {input.Take<std::uint8_t>() % 24, input.Take<std::uint8_t>() % 60, input.Take<std::uint8_t>() % 60};
}

bool IsTimeOfDay(const Orario& time)
{
    const auto within = [](i32 part, int limit) { return part >= 0 && part < limit; };
    return within(time.ore, 24) && within(time.minuti, 60) && within(time.secondi, 60);
}

std::tuple<int, int, int> Parts(const Orario& time)
{
    return {time.ore.value(), time.minuti.value(), time.secondi.value()};
}

/// The message for an end that is not after the start; the blanks at its end distinguish the cases.
Text WarningOf(const Orario& start, const Orario& end)
{
    if (Parts(end) == Parts(start)) {
        return "L'ORA FINE E' UGUALE ALL'ORA INIZIO        ";
    }
    if (Parts(end) > Parts(start)) {
        return {};
    }
    const bool bySeconds = end.ore == start.ore && end.minuti == start.minuti;
    return Text("L'ORA FINE E' MINORE DELL'ORA INIZIO") + Text(bySeconds ? 8 : 9, ' ');
}

void CheckVerdict(bool distance, const Orario& start, const Orario& end)
{
    const EsitoTempi verdict = ControllaTempi(distance, start, end);
    const bool given = end.ore >= 1 || end.minuti >= 1 || end.secondi >= 1;
    const Calcolo wanted = !given ? Calcolo::Niente : distance ? Calcolo::TempoEMedia : Calcolo::SoloTempo;
    Require(verdict.calcolo == wanted, "what can be computed");
    Require(verdict.azzera == (!given || !distance), "time and average are blanked when either is missing");
    Require(verdict.avviso == (given ? WarningOf(start, end) : Text()), "the warning of the order of the times");
}

double SecondsOf(const Orario& time)
{
    return (time.ore.value() * 60.0 + time.minuti.value()) * 60.0 + time.secondi.value();
}

/// The average as text against the same in double precision, at most a second apart.
void CheckAverage(const Text& average, double metres, double seconds)
{
    const auto colon = average.find(':');
    Require(colon != Text::npos && average.size() - colon == 3, "minutes, a colon, two digits");
    const double shown = std::atoi(average.c_str()) * 60.0 + std::atoi(average.c_str() + colon + 1);
    Require(shown < 61 * 60, "an average is not above an hour");
    Require(std::fabs(shown - seconds * 1000 / metres) <= 1.001, "the average per kilometre");
}

void CheckPace(const Text& distance, const Orario& time)
{
    std::optional<Text> average;
    const int error = RaisedBy([&] { average = CalcolaMedia(distance, time); });
    RequireError(error, {Errore::Overflow, Errore::DivisionePerZero, Errore::TipoNonCorrispondente});
    if (error != 0 || !average || !IsTimeOfDay(time)) {
        return;
    }
    const double metres = std::nearbyint(static_cast<double>(LocaleSingle(distance) * 1000.0F));
    if (metres > 0 && SecondsOf(time) > 0) {
        CheckAverage(*average, metres, SecondsOf(time));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    const Orario start = TakeTime(input);
    const Orario end = TakeTime(input);
    const Text distance = input.Rest();

    CheckVerdict(!distance.empty(), start, end);

    Orario taken{};
    const int error = RaisedBy([&] { taken = TempoTrascorso(start, end); });
    RequireError(error, {Errore::Overflow});
    if (error == 0) {
        Require(!TestoTempo(taken).empty(), "a time as text");
        CheckPace(distance, taken);
    }
    if (IsTimeOfDay(start) && IsTimeOfDay(end)) {
        Require(SecondsOf(taken) == SecondsOf(end) - SecondsOf(start), "the time between start and end");
        Require(taken.minuti >= 0 && taken.minuti < 60 && taken.secondi >= 0 && taken.secondi < 60, "the borrows");
    }
    CheckPace(distance, end);
    return 0;
}
