// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"
#include "diary/SearchCriteria.h"
#include "diary/SearchTotals.h"

#include <cstddef>
#include <vector>

namespace zelvia
{

/// An error of a search, under the title of the routine that it belongs to.
struct SearchError {
    TextView title;
    ErroreRunTime error;
    std::size_t lines; ///< How many lines were listed before it.
};

struct SearchResult {
    SearchTotals totals;
    std::vector<Text> lines;         ///< A line for each run found.
    std::vector<SearchError> errors; ///< In the order in which they arose.
    bool ended = false;              ///< The search ended before the totals, with the last of the errors.
};

/// Finds the runs among the days 1..`last` and adds them up; the sums are not carried over yet. `totals` are those of
/// the previous search, emptied. A time or an average that can't be read is reported and left out; a period that is not
/// a date ends the search.
SearchResult FindRuns(const BoundedArray<RecordGiorno, 0, 366>& days, i16 last, const SearchCriteria& criteria,
                      const SearchTotals& totals);

/// A run as a line of 43 columns: its distance from column 2 on, its time from 11, its average from 23, or from 22 when
/// `averageMinutes` has two digits, and its date from 33.
Text RunLine(const RecordGiorno& day, i16 averageMinutes);

} // namespace zelvia
