// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <string_view>
#include <vector>

namespace zelvia
{

/// A field of a day that two diaries hold differently, as the page names it.
struct FieldDifference {
    Text name;
    Text before; ///< Without quotes; empty for a blank field.
    Text after;
};

/// A day of which at least one field differs.
struct DayDifference {
    int slot = 0; ///< 1..366
    Text date;    ///< "sabato 3 marzo 2007", or "giorno 62" when the file holds no date there.
    std::vector<FieldDifference> fields;
    Text iso; ///< "2007-03-03"; empty when the file holds no date there.
};

struct DiaryDifference {
    std::vector<DayDifference> days;
    int daysBefore = 0; ///< Whole days that each diary holds, 0..366.
    int daysAfter = 0;
};

/// The lines of a file without their ends.
std::vector<TextView> LinesOf(TextView bytes);

/// The number of lines that a day has in the file.
int LinesOfDay();

/// Compares two diary files, given whole, line by line. So a damaged diary, which the program would
/// not read, can be compared all the same; a day that it lacks counts as blank, and so does a missing diary, given as
/// the empty text. A day that was looked at and left without an entry does not differ from one that never was.
DiaryDifference CompareDiaries(TextView before, TextView after);

} // namespace zelvia
