// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "tools/exchange/DayColumns.h"
#include "tools/watch/KilometreTimes.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zelvia
{

/// One row that comes in: its day, and what it says of it.
struct IncomingDay {
    CalendarDate date;
    std::vector<std::pair<DayColumn, std::string>> cells; ///< Those that hold something.
    std::vector<KilometreTime> splits;                    ///< All of the day, when its table is one of splits.
};

/// A text as the diary's files can hold it: no quotes, no line ends.
Text HeldText(std::string_view utf8);

/// Raises FileFailure with the reason when the date is none.
IncomingDay IncomingOf(const std::vector<std::optional<DayColumn>>& columns, const std::vector<std::string>& cells);

/// True for a table of splits: its columns are those of one, and a day comes up more than once.
bool HoldsSplits(const std::vector<std::vector<std::string>>& rows);

/// The day and the split of a row of such a table. Raises FileFailure with the reason when it has none.
IncomingDay IncomingSplit(const std::vector<std::string>& cells);

/// Puts the cells, or the splits, into a day; what they do not contain stays as it is. Time and average are worked out.
/// Raises FileFailure with the reason when one is no value of its field; the day is then half changed. False when the
/// notes had to be cut.
bool PutInto(RecordGiorno& day, const IncomingDay& incoming);

} // namespace zelvia
