// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/SourceLines.h"
#include "tools/strumenti/ValueCheck.h"

#include <vector>

namespace zelvia
{

/// Lays lines of which some are missing or too many over what a file should have: as few as possible are left out or
/// put in blank, and each line goes where it looks right.
std::vector<SourceLine> Align(const std::vector<SourceLine>& lines, const std::vector<LinePattern>& patterns);

} // namespace zelvia
