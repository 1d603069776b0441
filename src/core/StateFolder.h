// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace zelvia
{

/// The user's own folder for what the programs keep beside the diaries: "zelvia" in $XDG_STATE_HOME, which is
/// .local/state in the home unless it is set to an absolute path. Empty when the home is unknown. It need not exist.
std::filesystem::path StateFolder();

/// A file or folder in it; empty when the home is unknown.
std::filesystem::path StateFile(const std::filesystem::path& name);

} // namespace zelvia
