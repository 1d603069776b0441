// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/copies/CopyStore.h"

#include <filesystem>
#include <string>
#include <vector>

namespace zelvia
{

/// What the runner reads about copies: Italian, UTF-8, whole lines.

/// One line for each copy.
std::string TextOfList(const std::vector<Copy>& copies);

/// How the files of `present` differ from those of a copy: the diaries day by day, the other files by name.
/// Raises what reading them raises.
std::string TextOfComparison(const Copy& copy, const std::filesystem::path& present);

} // namespace zelvia
