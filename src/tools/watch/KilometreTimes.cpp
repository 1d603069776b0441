// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/KilometreTimes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zelvia
{
namespace
{

constexpr double kKilometre = 1000;
constexpr double kMetre = 1; ///< What watches round away.

/// The moving time up to so many elapsed seconds.
double MovingUpTo(const Activity& activity, double elapsed)
{
    if (!activity.pauses.empty()) {
        double moving = elapsed;
        for (const Pause& pause : activity.pauses) {
            moving -= std::clamp(elapsed - pause.from, 0.0, pause.to - pause.from);
        }
        return moving;
    }
    // Where the pauses were is not known: they are spread over their lap, or over the whole.
    double before = 0;
    double movingBefore = 0;
    for (const Lap& lap : activity.laps) {
        if (lap.elapsed > 0 && elapsed <= before + lap.elapsed) {
            return movingBefore + (elapsed - before) * std::min(lap.moving / lap.elapsed, 1.0);
        }
        before += lap.elapsed;
        movingBefore += std::min(lap.moving, lap.elapsed);
    }
    return elapsed * activity.moving / activity.elapsed;
}

/// By the lap that ends at the mark.
std::optional<double> ByLaps(const Activity& activity, double mark, RunClock clock)
{
    double metres = 0;
    double seconds = 0;
    for (const Lap& lap : activity.laps) {
        metres += lap.metres;
        seconds += clock == RunClock::Elapsed ? lap.elapsed : std::min(lap.moving, lap.elapsed);
        if (std::abs(metres - mark) <= kMetre && lap.metres > 0) {
            return seconds;
        }
    }
    return std::nullopt;
}

/// Between the points before and behind the mark.
std::optional<double> ByTrack(const Activity& activity, double mark, RunClock clock)
{
    const auto behind = std::lower_bound(activity.track.begin(), activity.track.end(), mark,
                                         [](const TrackPoint& point, double metres) { return point.metres < metres; });
    double seconds = 0;
    if (behind == activity.track.end()) {
        if (activity.track.empty() || activity.track.back().metres < mark - kMetre) {
            return std::nullopt;
        }
        seconds = activity.track.back().seconds;
    } else {
        const TrackPoint before = behind == activity.track.begin() ? TrackPoint() : *(behind - 1);
        const double part = (mark - before.metres) / (behind->metres - before.metres);
        seconds = before.seconds + part * (behind->seconds - before.seconds);
    }
    return clock == RunClock::Elapsed ? seconds : MovingUpTo(activity, seconds);
}

} // namespace

std::vector<KilometreTime> KilometreTimes(const Activity& activity, RunClock clock)
{
    constexpr int most = 100; // Places in the day.
    const double whole = clock == RunClock::Elapsed ? activity.elapsed : activity.moving;
    std::vector<KilometreTime> times;
    for (int km = 1; km <= most && km * kKilometre <= activity.metres + kMetre / 2; ++km) {
        const double mark = km * kKilometre;
        auto seconds = ByLaps(activity, mark, clock);
        if (!seconds) {
            seconds = ByTrack(activity, mark, clock);
        }
        if (seconds) {
            times.push_back({km, static_cast<int>(std::lround(std::clamp(*seconds, 0.0, whole)))});
        }
    }
    return times;
}

} // namespace zelvia
