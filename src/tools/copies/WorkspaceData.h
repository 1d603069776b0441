// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zelvia
{

/// The runner's own files in a program folder, as paths that start from it, sorted: `nomeload`, everything in
/// "ZelviaFile" and, of each diary there, of the default one and of the one that `nomeload` names, the files of its
/// folder. Hidden files and everything else in the program folder are left out: it may well be a home folder.
/// Raises std::filesystem::filesystem_error on a folder that can't be read.
std::vector<std::string> WorkspaceFiles(const std::filesystem::path& folder);

/// Changes with any write to those files.
std::string StateOfFiles(const std::filesystem::path& folder);

/// Every file below a folder except hidden ones, as paths that start from it, sorted. None for a folder that is
/// absent.
std::vector<std::string> FilesBelow(const std::filesystem::path& folder);

/// True when a program runs in this folder: it keeps a lock there.
bool IsInUse(const std::filesystem::path& folder);

} // namespace zelvia
