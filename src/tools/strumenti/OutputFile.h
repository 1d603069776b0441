// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"

#include <optional>
#include <string>

namespace zelvia
{

/// Whether an action may write its file: one that is there is replaced only when the runner says so, and one of the
/// diaries never. None to go ahead, else the exit status to end with; raises FileFailure with what is in the way.
std::optional<int> RefuseFile(Context& context, const std::string& file);

} // namespace zelvia
