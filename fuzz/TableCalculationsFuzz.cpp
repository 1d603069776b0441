// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The three calculations of a row of a training table, from the texts of its eight boxes, one per line.
#include "Harness.h"
#include "core/Conversions.h"
#include "diary/TableCalculations.h"

#include <algorithm>
#include <cmath>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

/// The row in plain numbers; usable when each is whole and within its box's range or not far beyond it.
struct Numbers {
    double metres = 0;
    double seconds = 0;
    double pace = 0; ///< Seconds per kilometre.
    bool usable = false;
};

Numbers NumbersOf(const std::vector<Text>& boxes)
{
    Numbers numbers;
    std::vector<double> values;
    for (const Text& box : boxes) {
        values.push_back(Val(box));
    }
    constexpr double most = 9999;
    numbers.usable = std::all_of(values.begin(), values.end(), [](double value) {
        return value >= 0 && value <= most && value == std::trunc(value);
    });
    // Beyond these the whole seconds of the average overflow a short.
    numbers.usable = numbers.usable && values[5] <= 500 && values[6] <= 500;
    numbers.metres = values[0] * 1000 + values[1];
    numbers.seconds = (values[2] * 60 + values[3]) * 60 + values[4];
    numbers.pace = values[5] * 60 + values[6] + values[7] / 1000;
    return numbers;
}

bool Near(double actual, double expected, double margin)
{
    return std::fabs(actual - expected) <= margin + expected * 1e-6;
}

void CheckAverage(const RowGroups& row, const Numbers& numbers)
{
    std::optional<RowAverage> average;
    const int error = RaisedBy([&] { average = AverageFrom(row); });
    RequireError(error, {Errore::Overflow, Errore::DivisionePerZero});
    // The whole minutes are a short.
    const bool tooSlow = numbers.seconds * 1000 / 60 > INT16_MAX * std::max(numbers.metres, 1.0);
    Require(error == 0 || tooSlow || !numbers.usable || !AsksForAverage(row),
            "an average that is asked for can be had");
    if (error != 0 || !average || !numbers.usable) {
        return;
    }
    Require(average->minutes >= 0 && average->minutes <= 60 && average->seconds >= 0 && average->seconds <= 59,
            "the range of an average");
    const double shown =
        average->minutes.value() * 60 + average->seconds.value() + LocaleDouble(average->thousandths) / 1000;
    Require(Near(shown, numbers.seconds * 1000 / numbers.metres, 0.001), "the average of distance and time");
}

void CheckTime(const RowGroups& row, const Numbers& numbers)
{
    RowTime time{};
    const int error = RaisedBy([&] { time = TimeFrom(row); });
    RequireError(error, {Errore::Overflow});
    if (error != 0 || !numbers.usable) {
        Require(error == 0 || !numbers.usable, "the time of a row in range");
        return;
    }
    Require(time.minutes >= 0 && time.minutes <= 59 && time.seconds >= 0 && time.seconds <= 59, "the range of a time");
    const double shown = (time.hours.value() * 60.0 + time.minutes.value()) * 60.0 + time.seconds.value();
    Require(Near(shown, numbers.pace * numbers.metres / 1000, 0.6), "the time of distance and average");
}

void CheckDistance(const RowGroups& row, const Numbers& numbers)
{
    RowDistance distance{};
    const int error = RaisedBy([&] { distance = DistanceFrom(row); });
    RequireError(error, {Errore::Overflow, Errore::DivisionePerZero});
    Require(error == 0 || !numbers.usable || !AsksForDistance(row), "a distance that is asked for can be had");
    if (error != 0 || !numbers.usable) {
        return;
    }
    Require(distance.metres >= 0 && distance.metres <= 1000, "the range of the metres");
    const double shown = distance.km.value() * 1000.0 + distance.metres.value();
    Require(Near(shown, numbers.seconds * 1000 / numbers.pace, 0.6), "the distance of time and average");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<Text> boxes = InputLines(data, size, 8);
    const RowGroups row{boxes[0], boxes[1], boxes[2], boxes[3], boxes[4], boxes[5], boxes[6], boxes[7]};
    Numbers numbers;
    const int beyond = RaisedBy([&] { numbers = NumbersOf(boxes); });
    RequireError(beyond, {Errore::Overflow});
    RequireError(RaisedBy([&] { OnlyOneGroup(row); }), {Errore::Overflow});
    if (beyond == 0) {
        CheckAverage(row, numbers);
        CheckTime(row, numbers);
        CheckDistance(row, numbers);
    }
    return 0;
}
