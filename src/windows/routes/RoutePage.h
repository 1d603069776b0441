// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"

namespace zelvia
{

/// What the window of a route's description needs of the day page.
class RoutePage
{
public:
    virtual ~RoutePage() = default;
    /// Puts a distance into the spin controls of the day.
    virtual void SetDistance(i32 km, i32 metres) = 0;
};

} // namespace zelvia
