// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Text.h"

#include <optional>

namespace zelvia
{

class frmMain;

/// The title of the page's window: the diary and the day shown, and Qt's mark as long as something is not saved.
class PageTitle
{
public:
    explicit PageTitle(frmMain& page) : page_(page) {}

    /// Brings the title up to date with the page.
    void Update();

private:
    bool Modified() const;

    frmMain& page_;
    Text diary_;
    std::optional<CalendarDate> day_; ///< Those shown in the title; no day before the first time.
};

} // namespace zelvia
