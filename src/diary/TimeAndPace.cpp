// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TimeAndPace.h"

#include "core/Conversions.h"
#include "core/Messages.h"

namespace zelvia
{
namespace
{

const Message* Warning(const ClockTime& start, const ClockTime& end)
{
    if (end.hours != start.hours) {
        return end.hours < start.hours ? &Messages::kEndBeforeStart : nullptr;
    }
    if (end.minutes != start.minutes) {
        return end.minutes < start.minutes ? &Messages::kEndBeforeStart : nullptr;
    }
    if (end.seconds != start.seconds) {
        return end.seconds < start.seconds ? &Messages::kEndSecondsBeforeStart : nullptr;
    }
    return &Messages::kEndEqualsStart;
}

i32 SecondsOf(const ClockTime& time)
{
    if (time.hours >= 1) {
        return (time.hours * 60 + time.minutes) * 60 + time.seconds;
    }
    if (time.hours == 0 && time.minutes > 0) {
        return time.minutes * 60 + time.seconds;
    }
    return time.hours == 0 && time.minutes == 0 && time.seconds > 0 ? time.seconds : i32(0);
}

} // namespace

TimesCheck CheckTimes(bool distance, const ClockTime& start, const ClockTime& end)
{
    const bool haFine = end.hours >= 1 || end.minutes >= 1 || end.seconds >= 1;
    if (!haFine) {
        return {Calculation::None, true, nullptr};
    }
    return {distance ? Calculation::TimeAndAverage : Calculation::TimeOnly, !distance, Warning(start, end)};
}

ClockTime ElapsedTime(const ClockTime& start, const ClockTime& end)
{
    ClockTime time{0, 0, 0};
    if (end.seconds < start.seconds) {
        time.seconds = 60 - start.seconds + end.seconds;
        time.minutes -= 1;
    } else {
        time.seconds = end.seconds - start.seconds;
    }
    if (end.minutes < start.minutes) {
        time.minutes = 60 - start.minutes + time.minutes + end.minutes;
        time.hours -= 1;
    } else {
        time.minutes = end.minutes - start.minutes + time.minutes;
    }
    // The minutes were equal and a second was borrowed.
    if (time.minutes < 0) {
        time.minutes = 60 - start.minutes + time.minutes + end.minutes;
        time.hours -= 1;
    }
    time.hours = end.hours - start.hours + time.hours;
    return time;
}

Text TimeText(const ClockTime& time)
{
    return PlainText(time.hours) + ":" + Format(time.minutes, "00") + ":" + Format(time.seconds, "00");
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

std::optional<Text> AverageText(TextView distance, const ClockTime& time)
{
    const f32 kilometres = LocaleSingle(distance);
    const std::optional<Pace> pace = PaceOf(RoundTo<i32>(static_cast<double>(kilometres * 1000.0F)), SecondsOf(time));
    if (!pace) {
        return std::nullopt;
    }
    return Format(pace->minutes, pace->minutes > 0 ? "##:" : "0:") + Format(pace->seconds, "00");
}

} // namespace zelvia
