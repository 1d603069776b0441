// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"
#include "tools/strumenti/Findings.h"

#include <string>
#include <vector>

namespace zelvia
{

/// Looks at every file of the diaries, and at the pointer to the one that is opened at the start. A report for each
/// file that something is wrong with. `overwrites`: also repair what would need to be asked about. Raises what
/// Context raises.
std::vector<FileReport> CheckDiaries(Context& context, const std::vector<std::string>& diaries, bool overwrites);

/// Makes the files of what they become, after a copy. The exit status; raises what Context raises.
int MendFiles(Context& context, const std::vector<FileReport>& reports);

} // namespace zelvia
