// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/Goals.h"

#include "core/StateFolder.h"
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/years/Periods.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr char kTab = '\t';

std::optional<int> NumberOf(std::string_view text)
{
    int number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

bool IsGoal(int kilometres)
{
    return kilometres > 0 && kilometres <= Goals::kHighest;
}

} // namespace

fs::path GoalFile()
{
    return StateFile("obiettivi");
}

Goals::Goals(fs::path file, const fs::path& folder)
    : file_(std::move(file)), folder_(fs::weakly_canonical(folder).string()), goals_(Read())
{
}

/// A goal a line: the folder, the year and the kilometres, with tabs between them.
std::vector<Goals::Goal> Goals::Read() const
{
    std::vector<Goal> goals;
    if (file_.empty() || !fs::exists(file_)) {
        return goals;
    }
    std::istringstream lines(ReadFile(file_));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream cells(line);
        std::string folder;
        std::string year;
        std::string kilometres;
        std::getline(cells, folder, kTab);
        std::getline(cells, year, kTab);
        std::getline(cells, kilometres);
        const auto number = NumberOf(year);
        const auto goal = NumberOf(kilometres);
        if (number && goal && IsGoal(*goal)) {
            goals.push_back({folder, *number, *goal});
        }
    }
    return goals;
}

void Goals::Write(const std::vector<Goal>& goals) const
{
    if (file_.empty()) {
        throw FileFailure(Tools::Tr("la cartella personale non è nota (HOME)"));
    }
    std::string bytes;
    for (const Goal& goal : goals) {
        bytes += goal.folder + kTab + std::to_string(goal.year) + kTab + std::to_string(goal.kilometres) + "\n";
    }
    MakeFolders(file_.parent_path());
    fs::path fresh = file_;
    fresh += ".nuovo";
    fs::remove(fresh);
    WriteNewFile(fresh, bytes);
    fs::rename(fresh, file_);
    SyncFolder(file_.parent_path());
}

std::optional<int> Goals::Of(int year) const
{
    const auto found = std::find_if(goals_.begin(), goals_.end(),
                                    [&](const Goal& goal) { return goal.folder == folder_ && goal.year == year; });
    return found == goals_.end() ? std::nullopt : std::optional(found->kilometres);
}

void Goals::Set(int year, std::optional<int> kilometres)
{
    std::vector<Goal> goals = goals_;
    std::erase_if(goals, [&](const Goal& goal) { return goal.folder == folder_ && goal.year == year; });
    if (kilometres && IsGoal(*kilometres)) {
        goals.push_back({folder_, year, *kilometres});
    }
    Write(goals);
    goals_ = std::move(goals);
}

Standing StandingOf(DaySpan days, int year, int kilometres, CalendarDate today)
{
    constexpr long perKm = 1000;
    constexpr int week = 7;
    const CalendarDate yearsEnd(year, 12, 31);
    const int all = yearsEnd.DayOfYear().value();
    const int present = today.Year().value();
    const int passed = present < year ? 0 : present > year ? all : today.DayOfYear().value();
    const std::vector<long> curve = CurveOf(days, year, yearsEnd);
    const long goal = kilometres * perKm;
    Standing standing;
    standing.done = curve.back();
    standing.due = goal * passed / all;
    standing.ahead = standing.done - standing.due;
    standing.left = std::max(0L, goal - standing.done);
    standing.daysLeft = all - passed;
    standing.aWeek = standing.daysLeft == 0 ? 0 : standing.left * week / standing.daysLeft;
    return standing;
}

} // namespace zelvia
