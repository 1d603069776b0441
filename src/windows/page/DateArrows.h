// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

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

private:
    /// Closes the open field for a step of the date; false when that opened a route's description.
    bool LeaveField();
    void Move(const UpDown& spin, TextView interval, int step);

    frmMain& page_;
};

} // namespace zelvia
