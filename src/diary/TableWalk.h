// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"

namespace zelvia
{

/// One row of a training table, field by field as its columns.
struct PlanRow {
    i16 km;
    i16 metres;
    i16 hours;
    i16 minutes;
    i16 seconds;
    i16 averageMinutes;
    i16 averageSeconds;
    Text paceClass;
    Text terrain;
    i16 repetitions;
    i16 repetitionMetres;
    i16 repetitionMinutes;
    i16 repetitionSeconds;
};

/// Row 0..31 of the table in memory. Raises error 9 for any other.
PlanRow PlanRowAt(i16 row);

/// How many of the six demands of a row a day fails, 0..6; a row without demands is failed by one unless the day is
/// empty too.
i16 FailedDemands(const RecordGiorno& day, const PlanRow& row);

/// What a walk along the days of the diary found.
struct WalkResult {
    enum class State {
        BeforeStart, ///< The day shown is before the table's start.
        Finished,    ///< A day came after the one that met the last row.
        UnderWay
    };
    State state;
    i16 row; ///< While under way, the row to show, 0..31.
};

namespace Module1
{

/// Compares day `day` with row `row` of the table in memory; `result` 0 means the row is met. Reports its own
/// failure and then leaves `result` as it is.
void ControlloAllenamento(i16 day, i16 row, i16& result);

/// Walks the days from the table's start to the day shown, leaving a row behind only when a day has met it;
/// IndiceTabella is then the row to be met next, 32 when all have been met.
WalkResult WalkTable();

} // namespace Module1
} // namespace zelvia
