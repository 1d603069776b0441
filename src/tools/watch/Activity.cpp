// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/Activity.h"

#include <cmath>

namespace zelvia
{

bool IsPlausible(const Activity& activity)
{
    constexpr std::int64_t end = 4'102'444'800; // 1 January 2100, from which on the page has no days.
    constexpr double day = 86400;
    constexpr double longest = 7 * day;
    constexpr double farthest = 5e6; // Metres.
    return activity.start >= 0 && activity.start < end - static_cast<std::int64_t>(longest + day) &&
           activity.elapsed > 0 && activity.elapsed <= longest && activity.moving >= 0 && activity.metres >= 0 &&
           activity.metres <= farthest;
}

void DropContradictingPauses(Activity& activity)
{
    constexpr double rounding = 1; // Seconds by which each pause may be out.
    double stopped = 0;
    for (const Pause& pause : activity.pauses) {
        stopped += pause.to - pause.from;
    }
    const double expected = activity.elapsed - activity.moving;
    if (std::abs(stopped - expected) > rounding * static_cast<double>(activity.pauses.size() + 1)) {
        activity.pauses.clear();
    }
}

std::vector<TrackPoint> PlausibleTrack(const std::vector<TrackPoint>& track, double elapsed)
{
    constexpr double fastest = 40;  // Metres a second.
    constexpr double tolerance = 1; // Seconds: some watches round the time of a point and not that of the end.
    constexpr double leap = 100;    // Metres by which a lost signal may put a point too far.
    std::vector<TrackPoint> kept;
    TrackPoint last;
    for (const TrackPoint& point : track) {
        if (!(point.seconds >= last.seconds && point.seconds <= elapsed + tolerance && point.metres >= last.metres)) {
            continue;
        }
        if (point.metres - last.metres > (point.seconds - last.seconds) * fastest + leap) {
            break;
        }
        kept.push_back(point);
        last = point;
    }
    return kept;
}

} // namespace zelvia
