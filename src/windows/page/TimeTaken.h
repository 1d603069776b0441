// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/TimeAndPace.h"
#include "windows/page/OrderedTimes.h"
#include "windows/page/PageControls.h"

namespace zelvia
{

/// The time taken and the average per kilometre, worked out from the fields of the page.
class TimeTaken
{
public:
    TimeTaken(PageControls& page, OrderedTimes& times) : page_(page), times_(times) {}

    /// 0 when nothing can be computed, 1 for time and average, 2 for the time only.
    i16 ControlloTempiKm();
    void TempoImpiegato();
    void tempo();
    void MediaKm(i32 hours, i32 minutes, i32 seconds);

private:
    ClockTime Start() const;
    ClockTime End() const;
    ClockTime Show();

    PageControls& page_;
    OrderedTimes& times_;
};

} // namespace zelvia
