// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

namespace zelvia
{

/// What the windows of the training tables need of the day page.
class TablePage
{
public:
    virtual ~TablePage() = default;
    /// Shows the name of the active table, or nothing.
    virtual void SetActiveTableName(TextView name) = 0;
    /// Has the page read the active table again at its next tick.
    virtual void RequestTableReading() = 0;
};

} // namespace zelvia
