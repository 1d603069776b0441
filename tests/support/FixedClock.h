// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"

namespace zelvia::test
{

/// Holds the system date at one day for as long as it lives.
class FixedClock
{
public:
    explicit FixedClock(CalendarDate date)
    {
        SetClock([date] { return date; });
    }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;
    ~FixedClock() { SetClock({}); }
};

} // namespace zelvia::test
