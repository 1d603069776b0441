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

/// What tells the time of day of an activity.
enum class ClockSource { File, Computer, Given };

/// What an activity would make of a day. Times are seconds: of the day, or taken.
struct DayProposal {
    CalendarDate date;
    ClockSource source = ClockSource::Computer;
    int start = 0;
    int end = 0; ///< Up to 24:59:59, as on the page. 0, like the start, when the times can't be kept.
    int elapsed = 0;
    int moving = 0;
    int km = 0;
    int metres = 0; ///< Beyond the whole kilometres.
    std::vector<KilometreTime> splits;
    Text route;
    Text type;
    Text season;
    std::vector<std::string> remarks; ///< What the runner should know: Italian, UTF-8.
};

/// How the runner wants activities to be read.
struct ProposalRules {
    RunClock clock = RunClock::Elapsed; ///< Moving: the end is the start and the moving time.
    std::optional<int> offset;          ///< Seconds ahead of UTC, instead of what file and computer tell.
};

/// True for an activity that is a run, or that does not tell what it is.
bool IsRun(const Activity& activity);

DayProposal ProposeDay(const Activity& activity, const ProposalRules& rules);

/// The same with splits that are known; neither laps nor track are looked at.
DayProposal ProposeDay(const Activity& activity, const ProposalRules& rules, std::vector<KilometreTime> splits);

/// The season of a date, an entry of the list of seasons.
TextView SeasonOf(CalendarDate date);

/// True when a day tells of an outing. Weight, weather and notes alone don't.
bool HoldsRun(const RecordGiorno& day);

/// The start and end of a day's outing, in seconds of the day.
int StartOf(const RecordGiorno& day);
int EndOf(const RecordGiorno& day);

/// True when a day tells of the outing that is proposed: the start is the same within a minute, the distance within a
/// hundredth.
bool HoldsSame(const RecordGiorno& day, const DayProposal& proposal);

/// Puts a proposal into a day. What a watch does not know stays as it is; a route or season that is there does too when
/// none is proposed.
void PutInto(RecordGiorno& day, const DayProposal& proposal);

/// Makes these the splits of a day; the others go.
void PutSplits(RecordGiorno& day, const std::vector<KilometreTime>& splits);

/// Puts the start and end of a run into a day, and what the page works out of them and of the distance.
void PutTimes(RecordGiorno& day, int start, int end);

} // namespace zelvia
