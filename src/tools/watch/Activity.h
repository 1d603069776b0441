// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// A place on the earth, in degrees.
struct Place {
    double latitude = 0;
    double longitude = 0;
};

/// How far the runner was, in metres, so many seconds after the start on the clock that runs on in pauses.
struct TrackPoint {
    double seconds = 0;
    double metres = 0;
};

/// A time during which the watch was stopped, in seconds after the start.
struct Pause {
    double from = 0;
    double to = 0;
};

struct Lap {
    std::int64_t start = 0; ///< Seconds since 1970, UTC.
    double elapsed = 0;     ///< Seconds, pauses included.
    double moving = 0;      ///< Seconds without the pauses.
    double metres = 0;
};

/// An outing as a watch or a phone recorded it.
struct Activity {
    std::string sport;         ///< As TCX and GPX name it, in lower case: running, cycling; empty when not told.
    std::int64_t start = 0;    ///< Seconds since 1970, UTC.
    std::optional<int> offset; ///< Seconds by which the watch's own time was ahead of UTC, when the file tells.
    double elapsed = 0;        ///< Seconds, pauses included.
    double moving = 0;         ///< Seconds without the pauses, never more than those elapsed.
    double metres = 0;
    std::vector<Lap> laps;
    std::vector<TrackPoint> track; ///< In order: neither seconds nor metres ever go back.
    std::vector<Pause> pauses;     ///< In order. May be empty though less time was moving than elapsed.
    std::optional<Place> place;    ///< Where it started.
};

/// What could be read of a file.
struct WatchFile {
    std::vector<Activity> activities; ///< In the order of the file.
    std::vector<std::string> faults;  ///< What is wrong with it: Italian, UTF-8, to be put behind the file's name.
};

/// True when it has a time that a diary can hold and lasted a while, a week at most.
bool IsPlausible(const Activity& activity);

/// Forgets pauses that are not as long as the times elapsed and moving say.
void DropContradictingPauses(Activity& activity);

/// Keeps of a track what can be true: what lies within the time elapsed, never goes back and is no faster than any
/// sport. From the first leap on nothing is kept.
std::vector<TrackPoint> PlausibleTrack(const std::vector<TrackPoint>& track, double elapsed);

} // namespace zelvia
