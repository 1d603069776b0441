// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/RecordGiorno.h"

#include <QString>

namespace zelvia
{
class frmMain;
} // namespace zelvia

namespace zelvia::monkey
{

/// What a commit takes from the controls of the page, over what `before` holds.
RecordGiorno CommittedFrom(const frmMain& page, const RecordGiorno& before);

/// What a commit makes of a record that has been shown and left unchanged on `date`.
RecordGiorno Visited(const RecordGiorno& day, CalendarDate date);

/// Where the two differ, or nothing.
QString DayDifference(const RecordGiorno& is, const RecordGiorno& shouldBe);

/// What is wrong with the texts of the page against the values that they show, or nothing.
QString PageFault(const frmMain& page);

/// What is wrong with the counters of the year on the page, which hold after a move of the date, or nothing.
QString CounterFault(const frmMain& page);

} // namespace zelvia::monkey
