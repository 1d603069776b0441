// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"
#include "tools/watch/KilometreTimes.h"

#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// What the runner says of a day otherwise than it is proposed. Times are seconds of the day.
struct DayCorrections {
    std::optional<CalendarDate> date;
    std::optional<RunClock> clock;
    std::optional<int> start;
    std::optional<int> end;
    std::optional<int> km;
    std::optional<int> metres; ///< Beyond the whole kilometres.
    std::optional<Text> route;
    std::optional<Text> type;
    std::optional<Text> season;
    std::optional<std::vector<KilometreTime>> splits;

    friend bool operator==(const DayCorrections&, const DayCorrections&) = default;
};

/// Puts all of them but date and clock into the day; time and average are worked out.
void PutInto(RecordGiorno& day, const DayCorrections& corrections);

/// The captions of what was entered into `day` and is something else, or nothing, in `result`.
std::vector<std::string> LostFields(const RecordGiorno& day, const RecordGiorno& result);

} // namespace zelvia
