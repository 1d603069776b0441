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

/// The same for programs: tab-separated lines of number, time, diaries and bytes, with a head.
std::string TableOfList(const std::vector<Copy>& copies);

/// How the files of `present` differ from those of a copy: the diaries day by day, the other files by name.
/// Raises what reading them raises.
std::string TextOfComparison(const Copy& copy, const std::filesystem::path& present);

/// The same for programs: tab-separated lines of file, date, field, copy and now with a head, one for each field of a
/// day and one for each other file, without date and field: "1" where that file exists.
std::string TableOfComparison(const Copy& copy, const std::filesystem::path& present);

} // namespace zelvia
