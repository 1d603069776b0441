// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The average per kilometre of a distance and a time that the page can show, against the quotient of whole numbers.
#include "Harness.h"
#include "core/Conversions.h"
#include "diary/TimeAndPace.h"

#include <cmath>
#include <cstdio>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

/// Whole numbers, so that the quotient has no error but the last of a double.
struct Run {
    int km;
    int metres;  ///< Of the distance beyond the kilometres, 0..999.
    int seconds; ///< Below a day.

    int Metres() const { return km * 1000 + metres; }
    double SecondsPerKm() const { return seconds * 1000.0 / Metres(); }
    /// How far the single precision of speed and fraction and of the seconds moves the seconds at most.
    double Margin() const { return (SecondsPerKm() + 60) * 0x1p-23; }
};

Run TakeRun(Bytes& input)
{
    constexpr int kmOfCaption = 1000;
    constexpr int day = 24 * 60 * 60;
    const int km = input.Take<std::uint16_t>() % kmOfCaption;
    const int metres = input.Take<std::uint16_t>() % 1000;
    return {km, metres, static_cast<int>(input.Take<std::uint32_t>() % day)};
}

Text CaptionOf(const Run& run)
{
    return std::to_string(run.km) + "," + Format(i32(run.metres), "000");
}

int ExpectedError(const Run& run)
{
    if (run.Metres() == 0 && run.seconds == 0) {
        return Errore::Overflow;
    }
    if (run.Metres() == 0 || run.seconds == 0) {
        return Errore::DivisionePerZero;
    }
    // The minutes are a short.
    return run.SecondsPerKm() / 60 >= INT16_MAX + 1.0 ? Errore::Overflow : 0;
}

void CheckShown(const Text& average, const Run& run)
{
    int minutes = -1;
    int seconds = -1;
    Require(std::sscanf(average.c_str(), "%2d:%2d", &minutes, &seconds) == 2 && seconds >= 0 && seconds <= 59,
            "minutes and seconds");
    Require(average == std::to_string(minutes) + ":" + (seconds < 10 ? "0" : "") + std::to_string(seconds),
            "minutes as plain digits, seconds with two");
    const int shown = minutes * 60 + seconds;
    Require(shown >= std::floor(run.SecondsPerKm() - run.Margin()) &&
                shown <= std::floor(run.SecondsPerKm() + run.Margin()),
            "the whole seconds of the quotient, but for the last bits of a single");
}

void CheckRun(const Run& run)
{
    const ClockTime time{run.seconds / 3600, run.seconds / 60 % 60, run.seconds % 60};
    std::optional<Text> average;
    const int error = RaisedBy([&] { average = AverageText(CaptionOf(run), time); });
    Require(error == ExpectedError(run), "the error of an average");
    if (error != 0) {
        return;
    }
    constexpr double tooSlow = 61 * 60;
    if (average) {
        Require(run.SecondsPerKm() - run.Margin() < tooSlow, "no average is shown above 60 minutes");
        CheckShown(*average, run);
    } else {
        Require(run.SecondsPerKm() + run.Margin() >= tooSlow, "an average up to 60 minutes is shown");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    CheckRun(TakeRun(input));
    return 0;
}
