// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/RecordGiorno.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// The columns in which days leave the diary and come in.
enum class DayColumn {
    Date,
    Route,
    LengthClass,
    Km,
    PaceClass,
    Terrain,
    Type,
    Start,
    End,
    Time,
    Average,
    Season,
    Weather,
    Temperature,
    Runners,
    Weight,
    Repetitions,
    RepetitionDistance,
    RepetitionTime,
    Notes
};

struct DayColumnRow {
    DayColumn column;
    std::string_view name;  ///< In the files.
    std::string_view label; ///< As the page calls it.
    bool number = false;
};

const std::vector<DayColumnRow>& DayColumns();

/// The column of a head, by its name in the files or by the page's, case ignored.
std::optional<DayColumn> ColumnOf(std::string_view head);

/// True when anything at all was written into the day.
bool HasEntry(const RecordGiorno& day);

/// The cell of a day, UTF-8; empty for what was not entered, except the distance.
std::string CellOf(const RecordGiorno& day, DayColumn column);

/// A split of a day as it leaves the diary.
struct DaySplit {
    std::string km;
    std::string time;
};

/// The splits of a day; those whose line can't be read are counted in `unreadable`.
std::vector<DaySplit> SplitsOf(const RecordGiorno& day, int& unreadable);

/// The text of a day that is entered with a list, null for any other column.
Text RecordGiorno::*ListMember(DayColumn column);

} // namespace zelvia
