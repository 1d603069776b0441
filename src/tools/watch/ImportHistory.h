// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Text.h"
#include "tools/watch/Activity.h"

#include <filesystem>
#include <string>
#include <vector>

namespace zelvia
{

/// An activity that was imported.
struct ImportedActivity {
    std::string folder;      ///< The program folder, absolute.
    std::int64_t moment = 0; ///< Its start, seconds since 1970, UTC.
    CalendarDate date;       ///< The day that it became.
    int metres = 0;
    std::optional<Place> place;
    Text route; ///< That of the day when it was last seen, empty for none.
};

/// Keeps what was imported on this computer, one activity a line.
class ImportHistory
{
public:
    /// Reads `file`, which may be absent; lines that make no sense are left out. Raises FileFailure.
    explicit ImportHistory(std::filesystem::path file);

    /// Those of a program folder.
    std::vector<ImportedActivity> Of(const std::string& folder) const;

    /// Adds an activity, in the place of the one of that folder and moment.
    void Put(ImportedActivity activity);

    /// Replaces the file, whole or not at all. Raises FileFailure.
    void Save() const;

private:
    std::filesystem::path file_;
    std::vector<ImportedActivity> all_;
};

/// A route of the diary, or one where an earlier run went.
struct RouteCandidate {
    Text name;
    int metres = 0;
    std::optional<Place> start;
};

/// True when a route of that length may be the activity's: within a thirtieth.
bool IsOfLength(const Activity& activity, int metres);

/// The route of an activity: the one closest in length of those that start in the same place or, without such, of those
/// whose start is not known. Empty when none is of its length.
Text ProposeRoute(const Activity& activity, const std::vector<RouteCandidate>& candidates);

} // namespace zelvia
