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
ClockTime TakeTime(Bytes& input)
{
    if (input.Take<std::uint8_t>() == 255) {
        return {input.Take<std::int32_t>(), input.Take<std::int32_t>(), input.Take<std::int32_t>()};
    }
    return {input.Take<std::uint8_t>() % 24, input.Take<std::uint8_t>() % 60, input.Take<std::uint8_t>() % 60};
}

bool IsTimeOfDay(const ClockTime& time)
{
    const auto within = [](i32 part, int limit) { return part >= 0 && part < limit; };
    return within(time.hours, 24) && within(time.minutes, 60) && within(time.seconds, 60);
}

std::tuple<int, int, int> Parts(const ClockTime& time)
{
    return {time.hours.value(), time.minutes.value(), time.seconds.value()};
}

/// The message for an end that is not after the start; the blanks at its end distinguish the cases.
Text WarningOf(const ClockTime& start, const ClockTime& end)
{
    if (Parts(end) == Parts(start)) {
        return "L'ORA FINE E' UGUALE ALL'ORA INIZIO        ";
    }
    if (Parts(end) > Parts(start)) {
        return {};
    }
    const bool bySeconds = end.hours == start.hours && end.minutes == start.minutes;
    return Text("L'ORA FINE E' MINORE DELL'ORA INIZIO") + Text(bySeconds ? 8 : 9, ' ');
}

void CheckVerdict(bool distance, const ClockTime& start, const ClockTime& end)
{
    const TimesCheck verdict = CheckTimes(distance, start, end);
    const bool given = end.hours >= 1 || end.minutes >= 1 || end.seconds >= 1;
    const Calculation wanted = !given     ? Calculation::None
                               : distance ? Calculation::TimeAndAverage
                                          : Calculation::TimeOnly;
    Require(verdict.calculation == wanted, "what can be computed");
    Require(verdict.blanks == (!given || !distance), "time and average are blanked when either is missing");
    const TextView shown = verdict.warning != nullptr ? verdict.warning->text : TextView();
    Require(shown == (given ? WarningOf(start, end) : Text()), "the warning of the order of the times");
}

double SecondsOf(const ClockTime& time)
{
    return (time.hours.value() * 60.0 + time.minutes.value()) * 60.0 + time.seconds.value();
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

void CheckPace(const Text& distance, const ClockTime& time)
{
    std::optional<Text> average;
    const int error = RaisedBy([&] { average = AverageText(distance, time); });
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
    const ClockTime start = TakeTime(input);
    const ClockTime end = TakeTime(input);
    const Text distance = input.Rest();

    CheckVerdict(!distance.empty(), start, end);

    ClockTime taken{};
    const int error = RaisedBy([&] { taken = ElapsedTime(start, end); });
    RequireError(error, {Errore::Overflow});
    if (error == 0) {
        Require(!TimeText(taken).empty(), "a time as text");
        CheckPace(distance, taken);
    }
    if (IsTimeOfDay(start) && IsTimeOfDay(end)) {
        Require(SecondsOf(taken) == SecondsOf(end) - SecondsOf(start), "the time between start and end");
        Require(taken.minutes >= 0 && taken.minutes < 60 && taken.seconds >= 0 && taken.seconds < 60, "the borrows");
    }
    CheckPace(distance, end);
    return 0;
}
