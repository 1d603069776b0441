// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <utility>
#include <vector>

/// The rules of the dates of the race calendar.
namespace zelvia::Module1
{

/// The date of a row as its boxes give it, 0 for an empty box.
struct RaceDate {
    double day = 0;
    double month = 0;
    double year = 0;
};

/// What is wrong with a date, and what a box of it is to hold instead.
struct DateCorrection {
    enum class Field { None, Day, Year };

    MsgRequest message;
    Field field = Field::None;
    Text value = {};

    friend bool operator==(const DateCorrection&, const DateCorrection&) = default;
};

/// The corrections of the date in a row, in the order in which they are reported. A year below 2007 is
/// replaced by `currentYear`. A year that 4 divides has a 29 February, no other rule of leap years applies; an empty
/// one counts among them.
std::vector<DateCorrection> CorrectDate(const RaceDate& date, i16 row, i16 currentYear);

/// The pairs of rows of the calendar that carry the same date, the earlier row of each first.
std::vector<std::pair<i16, i16>> SameDates();

/// What is said of such a pair.
MsgRequest SameDatesMessage(i16 first, i16 second);

/// The first row of the calendar with a race on a date, 0 for none.
i16 RaceOnDate(i16 day, i16 month, i16 year);

} // namespace zelvia::Module1
