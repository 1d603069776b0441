// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/ChartModel.h"
#include "diary/RecordGiorno.h"

namespace zelvia
{

/// The totals of a search.
struct SearchTotals {
    i32 TotKm;
    i32 TotMetri;
    i32 TotOre;
    i16 TotMinuti;
    i16 TotSecondi;
    i32 TotMediaMinuti;  ///< Of the runs' averages; after MediaTotali of the average itself.
    i32 TotMediaSecondi; ///< The same.
    i16 NumCorse;
    i16 MinutiMedia; ///< Minutes of the average read last.
    PaceTable Medie; ///< Of each run found, by its number from 1.
};

/// Empties the totals, but of Medie only the places 1..350, and keeps MinutiMedia.
void ClearTotals(SearchTotals& totals);

/// Adds the time of a day, hours:minutes:seconds. Raises error 5, and adds nothing, when one of the three is longer
/// than three characters; error 6 when minutes or seconds grow beyond 32767.
void SommaTempi(SearchTotals& totals, TextView time);

/// Adds the average of the run counted last, minutes:seconds. Raises error 5, and changes nothing, when one of the two
/// is longer than three characters; error 13, and adds nothing, when the seconds are below 0.
void SommaMedia(SearchTotals& totals, TextView average);

/// Carries whole thousands of metres over to the kilometres.
void SommaKm(SearchTotals& totals);

/// Carries the seconds over to the minutes and these to the hours. Raises error 6 when the minutes are too many.
void TempiTotali(SearchTotals& totals);

/// Turns the sum of the averages into their mean, each run weighing the same. Of a mean below a minute only the seconds
/// are set: the sum of the minutes stays.
void MediaTotali(SearchTotals& totals);

// The totals as they are shown.
Text RunsText(const SearchTotals& totals);
Text DistanceText(const SearchTotals& totals);
Text TimesText(const SearchTotals& totals);
Text MeanText(const SearchTotals& totals);

} // namespace zelvia
