// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/SpinKeys.h"

#include <optional>

namespace zelvia
{

class frmMain;
class UpDown;

/// The arrows that move the date of the page by days and by months.
class DateArrows
{
public:
    explicit DateArrows(frmMain& page);

    void lblData_Click();
    /// The numbers of the arrows only count clicks: screen readers say the date instead, and where the
    /// focus rests.
    void SpeakDate() const;

private:
    /// Closes the open field for a step of the date; false when that opened a route's description.
    bool LeaveField();
    void Move(const UpDown& spin, TextView interval, int step);

    frmMain& page_;
    std::optional<SpinKeys> keys_;
};

} // namespace zelvia
