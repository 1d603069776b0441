// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Date.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"

#include <span>
#include <string>
#include <vector>

namespace zelvia
{

/// What the figures over the years take of a day.
struct DiaryDay {
    CalendarDate date;
    Text route;        ///< Without blanks around it.
    int metres = 0;    ///< Whole kilometres and the rest; what is below 0 counts as none.
    int seconds = 0;   ///< The time taken, 0 for none.
    int kilograms = 0; ///< 0 for a day without a weight.
    bool run = false;  ///< It has a type. A race is a run, too.
    bool race = false;

    friend bool operator==(const DiaryDay&, const DiaryDay&) = default;
};

/// Days in the order of their dates, of one year or of several.
using DaySpan = std::span<const DiaryDay>;

/// A diary: its days that have a run, a distance, a time or a weight.
struct DiaryYear {
    int year = 0;
    std::string diary; ///< Its name, such as "prova" or "vecchi/2020".
    std::vector<DiaryDay> days;
};

/// The year of a diary: the one that most of its days have, of several the first.
int YearOf(const BoundedArray<RecordGiorno, 0, 366>& days);

/// The days of a diary. A day's date comes from its place in the year, as on the page: the date that is kept with it is
/// that of the last year in which it was shown. Place 366 of a common year is no day.
DiaryYear YearFrom(std::string diary, const BoundedArray<RecordGiorno, 0, 366>& days);

/// The seconds of hours:minutes:seconds, 0 for any other text.
int SecondsOf(TextView time);

} // namespace zelvia
