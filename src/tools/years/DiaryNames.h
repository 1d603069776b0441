// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// The name of a diary, such as "prova" or "vecchi/2020", from its file in the folder of the diaries; none for any
/// other file.
std::optional<std::string> DiaryName(const std::filesystem::path& file);

/// The file of a diary, from the program folder on.
std::filesystem::path DiaryFile(const std::string& diary);

/// The diaries of a program folder by their names, in order. Links are left out, and conflict copies but for `present`.
/// Raises std::filesystem::filesystem_error on a folder that can't be read.
std::vector<std::string> DiariesOf(const std::filesystem::path& folder, const std::string& present);

} // namespace zelvia
