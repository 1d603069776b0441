// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/years/DiaryYear.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// Where the goals of the user's diaries are kept: in the state folder. Empty when no home folder is known.
std::filesystem::path GoalFile();

/// How many kilometres are to be run in a year, for the diaries of one program folder.
class Goals
{
public:
    static constexpr int kHighest = 20'000; ///< Kilometres.

    /// Reads `file`, which may be absent; lines that make no sense are left out. Raises FileFailure.
    Goals(std::filesystem::path file, const std::filesystem::path& folder);

    std::optional<int> Of(int year) const;
    /// Sets the goal of a year and replaces the file, whole or not at all; none or 0 takes it away. The goals of other
    /// folders stay as they were read. Raises FileFailure.
    void Set(int year, std::optional<int> kilometres);

private:
    struct Goal {
        std::string folder;
        int year = 0;
        int kilometres = 0;
    };

    std::vector<Goal> Read() const;
    void Write(const std::vector<Goal>& goals) const;

    std::filesystem::path file_;
    std::string folder_;
    std::vector<Goal> goals_;
};

/// Where one stands.
struct Standing {
    long done = 0;    ///< Metres run in the year.
    long due = 0;     ///< Metres on the steady line from 0 to the goal, today's share among them.
    long ahead = 0;   ///< `done` less `due`; below 0 one is behind.
    long left = 0;    ///< Metres to the goal, 0 once it is reached.
    int daysLeft = 0; ///< After today.
    long aWeek = 0;   ///< Metres a week that reach the goal; 0 when it is reached or no day is left.
};

/// Of a year that is over the whole of it counts, of one to come nothing is due yet.
Standing StandingOf(DaySpan days, int year, int kilometres, CalendarDate today);

} // namespace zelvia
