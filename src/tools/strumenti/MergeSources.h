// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "tools/merge/Conflicts.h"
#include "tools/strumenti/Context.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// A second version of a file of the program folder.
struct OtherVersion {
    FileKind kind = FileKind::Diary;
    std::string file;                    ///< Here, from the program folder on.
    std::filesystem::path other;         ///< The whole path of the other version.
    std::optional<std::string> conflict; ///< Its path from the program folder on, when it is beside the file.
};

/// The other versions that the words name, a program folder or diary files, else the conflict copies of the folder.
/// With --diario those of that diary alone. Raises Misuse and what Context raises.
std::vector<OtherVersion> OtherVersions(Context& context, const std::vector<std::string>& words);

/// What is wrong with a version of a file so that it can't be merged, as a part of a sentence; empty when it can.
std::string DamageOf(FileKind kind, const std::string& name, const Text& bytes);

/// What the copies of those program folders hold of the file, the oldest first.
/// Those that hold the conflict copy already are younger than it and left out.
std::vector<Text> CopiesOf(const OtherVersion& version, const std::vector<std::filesystem::path>& folders);

} // namespace zelvia
