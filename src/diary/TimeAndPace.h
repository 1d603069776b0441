// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <optional>

namespace zelvia
{

/// A time of day or a time taken; the hours of a time taken can be negative.
struct ClockTime {
    i32 hours;
    i32 minutes;
    i32 seconds;
};

/// What can be computed from the fields of a day.
enum class Calculation { None = 0, TimeAndAverage = 1, TimeOnly = 2 };

struct TimesCheck {
    Calculation calculation;
    bool blanks;            ///< Time and average of the day must be blanked.
    const Message* warning; ///< A warning to show, or none.
};

/// Decides what can be computed. The end time counts as given when any part of it is 1 or more; the start time is
/// ignored. A warning does not change the result.
TimesCheck CheckTimes(bool distance, const ClockTime& start, const ClockTime& end);

/// `end` less `start` within one day, with borrows; past midnight the hours come out negative.
ClockTime ElapsedTime(const ClockTime& start, const ClockTime& end);

/// Hours as plain digits, minutes and seconds with two.
Text TimeText(const ClockTime& time);

/// A time per kilometre.
struct Pace {
    i16 minutes;
    i16 seconds;
    f32 thousandths; ///< Of a second, with a fraction.
};

/// The pace of a distance in a time, computed in single precision; nothing from 61 minutes on. Raises error 6 or 11
/// when one of the two is 0.
std::optional<Pace> PaceOf(i32 metres, i32 seconds);

/// The average per kilometre from the caption of a distance such as 10,500 and a time taken. Raises as PaceOf, and
/// error 13 for a caption that is not a number.
std::optional<Text> AverageText(TextView distance, const ClockTime& time);

} // namespace zelvia
