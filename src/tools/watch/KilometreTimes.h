// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/watch/Activity.h"

namespace zelvia
{

/// Which clock counts the time of a run.
enum class RunClock { Elapsed, Moving };

struct KilometreTime {
    int km = 0;
    int seconds = 0; ///< From the start of the run.

    friend bool operator==(const KilometreTime&, const KilometreTime&) = default;
};

/// When each whole kilometre was reached, up to the hundredth: as the watch's own laps tell where one ends there, else
/// from the points of the track. None for a kilometre of which neither tells.
std::vector<KilometreTime> KilometreTimes(const Activity& activity, RunClock clock);

} // namespace zelvia
