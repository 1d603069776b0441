// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/DiaryNames.h"

#include "core/Conversions.h"
#include "diary/Workspace.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/merge/Conflicts.h"

#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kExtension = ".zlv";

} // namespace

std::optional<std::string> DiaryName(const fs::path& file)
{
    if (!SameText(file.extension().string(), kExtension)) {
        return std::nullopt;
    }
    return (file.parent_path() / file.stem()).string();
}

fs::path DiaryFile(const std::string& diary)
{
    return fs::path(kDiaryFolder) / (diary + kExtension);
}

std::vector<std::string> DiariesOf(const fs::path& folder, const std::string& present)
{
    const fs::path place = folder / kDiaryFolder;
    std::set<std::string> conflicts;
    for (const Conflict& conflict : FindConflicts(folder)) {
        conflicts.insert(conflict.file);
    }
    std::vector<std::string> diaries;
    for (const std::string& file : FilesBelow(place)) {
        const auto name = DiaryName(file);
        const bool isConflict = name != present && conflicts.contains(fs::path(kDiaryFolder) / file);
        if (name && !isConflict && !fs::is_symlink(fs::symlink_status(place / file))) {
            diaries.push_back(*name);
        }
    }
    return diaries;
}

} // namespace zelvia
