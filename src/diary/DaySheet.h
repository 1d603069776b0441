// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"
#include "diary/Fields.h"

#include <array>

namespace zelvia
{

/// What the page shows of a day: the texts of its labels.
struct DaySheetTexts {
    CalendarDate date;
    std::array<Text, kPrintedFields> values; ///< In the order of the table of fields.
    /// True when the page shows the race of the day instead of the active table.
    bool showsRace = false;
    Text tableName;
    /// Distance, time, average, pace, terrain, repetitions.
    std::array<Text, 6> plan;
    /// Name, place, runners, time, length, placing, category, placing in it.
    std::array<Text, 8> race;
    std::array<Text, 8> note;
    /// Day of the year, runs, kilometres, races.
    std::array<Text, 4> counters;
};

/// The sheet of a day.
Sheet DaySheet(const DaySheetTexts& day);

} // namespace zelvia
