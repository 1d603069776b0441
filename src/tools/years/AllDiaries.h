// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/years/DiaryYear.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace zelvia
{

/// A diary that is not among the figures, and why: Italian, UTF-8.
struct DiaryLeftOut {
    std::string diary;
    std::string why;
};

/// The diaries of a folder.
struct AllDiaries {
    std::vector<DiaryYear> years; ///< One a year, from the oldest on.
    std::vector<DiaryLeftOut> leftOut;

    /// The days of all years.
    std::vector<DiaryDay> Days() const;
    /// The diary of a year, null for none.
    const DiaryYear* Find(int year) const;
};

/// Reads each diary of a program folder once; nothing is written and no state of the program is touched, so that it may
/// run beside anything else. A diary that can't be read whole is left out, and of several of one year all but the one
/// that the program opens at its start or, without it, the one that is named after the year, else the first.
/// `progress`, if given, hears how many of how many diaries were read; false ends the reading there.
/// Raises std::filesystem::filesystem_error when the folder can't be read.
AllDiaries ReadAllDiaries(const std::filesystem::path& folder, const std::function<bool(int, int)>& progress = {});

} // namespace zelvia
