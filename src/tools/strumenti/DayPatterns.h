// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/ValueCheck.h"

#include <vector>

namespace zelvia
{

/// The lines of a day, as the fields have them.
std::vector<LinePattern> DayPatterns();

} // namespace zelvia
