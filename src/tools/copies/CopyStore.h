// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// A copy of the runner's files in a program folder.
struct Copy {
    int number = 0;   ///< Counts up from 1 over all copies, so it tells their order even when the clock is set back.
    std::string date; ///< 2026-11-21, local time.
    std::string time; ///< 14-05-33
    std::filesystem::path place;  ///< Where the copy lies: a folder with the files as they lay in the program folder.
    std::filesystem::path folder; ///< The program folder it was taken of.
};

enum class CopyOutcome { Made, Unchanged, NothingThere, InUse };

/// Keeps dated copies of program folders, each a folder of its own. Every change is made under a name that is not a
/// copy's and shows by one renaming, so a copy is whole or not there, whatever ends the work half-way; what such an end
/// leaves is swept away by the next one. Two processes wait for each other.
/// Everything raises FileFailure or std::filesystem::filesystem_error.
class CopyStore
{
public:
    /// Copies of one program folder that are kept in any case. Of the older ones the last of each month stays.
    static constexpr std::size_t kKept = 30;

    /// How long the work of another process on the copies is waited for.
    static constexpr std::chrono::milliseconds kPatience{10'000};

    explicit CopyStore(std::filesystem::path root, std::chrono::milliseconds patience = kPatience)
        : root_(std::move(root)), patience_(patience)
    {
    }

    const std::filesystem::path& Root() const { return root_; }

    /// All copies, in order of their numbers.
    std::vector<Copy> List() const;
    std::optional<Copy> Find(int number) const;

    /// Takes a copy of `folder` unless the newest one of it holds the same, there is nothing of the runner's in it, or
    /// a program runs in it. Copies that are too old go when one has been made.
    CopyOutcome Take(const std::filesystem::path& folder, std::chrono::system_clock::time_point now);

    /// Puts a copy into `target`, which must be empty or not be there. The pointer files that lead into the program
    /// folder of the copy then lead into `target`; returns those that lead elsewhere.
    std::vector<std::string> PutBack(const Copy& copy, const std::filesystem::path& target);

private:
    void Sweep() const;
    void Thin(const std::filesystem::path& folder) const;

    std::filesystem::path root_;
    std::chrono::milliseconds patience_;
};

/// Where the copies of the present user lie, `zelvia/copie` in the folder of the state of programs; empty when the
/// environment names neither that folder nor a home.
std::filesystem::path CopyFolder();

} // namespace zelvia
