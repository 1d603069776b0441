// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of what watches write, and what is made of it.
#include "Harness.h"
#include "tools/watch/DayProposal.h"
#include "tools/watch/FitFile.h"

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

void RequireTimes(const Activity& activity, RunClock clock, int whole)
{
    KilometreTime last;
    for (const KilometreTime& time : KilometreTimes(activity, clock)) {
        Require(time.km > last.km && time.seconds >= 0 && time.seconds <= whole, "a kilometre lies within the run");
        last = time;
    }
}

void RequireActivity(const Activity& activity)
{
    Require(IsPlausible(activity), "an activity can be true");
    Require(activity.moving <= activity.elapsed, "no more time was moving than elapsed");
    TrackPoint last;
    for (const TrackPoint& point : activity.track) {
        Require(point.seconds >= last.seconds && point.metres >= last.metres, "a track goes forward");
        last = point;
    }
    const DayProposal day = ProposeDay(activity, {});
    Require(day.start >= 0 && day.end >= day.start && day.end < 25 * 3600, "the page can show the times");
    Require(day.km >= 0 && day.km <= 500 && day.metres >= 0 && day.metres < 1000, "the page can show the distance");
    RequireTimes(activity, RunClock::Elapsed, day.elapsed);
    RequireTimes(activity, RunClock::Moving, day.moving);
    RecordGiorno record;
    PutInto(record, day);
    Require(HoldsSame(record, day), "a day holds what was put into it");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (const Activity& activity : ReadFit(InputText(data, size)).activities) {
        RequireActivity(activity);
    }
    return 0;
}
