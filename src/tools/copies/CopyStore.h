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
    int number = 0;   ///< Counts up from 1 over all copies, so it gives their order even when the clock is set back.
    std::string date; ///< 2026-11-21, local time.
    std::string time; ///< 14-05-33
    std::filesystem::path place;  ///< The copy's folder, with the files as they were in the program folder.
    std::filesystem::path folder; ///< The program folder it was taken of.
};

enum class CopyOutcome { Made, Unchanged, NothingThere, InUse };

/// Keeps dated copies of program folders, each in its own folder. Every change is made in a temporary folder and
/// becomes visible by one renaming, so a copy is complete or absent even after a crash; the next run removes what a
/// crash has left. Two processes wait for each other. Everything raises FileFailure or
/// std::filesystem::filesystem_error.
class CopyStore
{
public:
    /// The number of copies of one program folder that are always kept. Of the older ones the last of each month is
    /// kept.
    static constexpr std::size_t kKept = 30;

    /// How long to wait for another process that is working on the copies.
    static constexpr std::chrono::milliseconds kPatience{10'000};

    explicit CopyStore(std::filesystem::path root, std::chrono::milliseconds patience = kPatience)
        : root_(std::move(root)), patience_(patience)
    {
    }

    const std::filesystem::path& Root() const { return root_; }

    /// All copies, in order of their numbers.
    std::vector<Copy> List() const;
    std::optional<Copy> Find(int number) const;

    /// Takes a copy of `folder` unless its newest copy is the same, it holds nothing of the runner's, or a program runs
    /// in it. Copies that are too old are deleted afterwards.
    CopyOutcome Take(const std::filesystem::path& folder, std::chrono::system_clock::time_point now);

    /// The same for a caller that holds the lock of the program in `folder`.
    CopyOutcome TakeHeld(const std::filesystem::path& folder, std::chrono::system_clock::time_point now);

    /// Takes a copy that another store holds, unless the newest one here of the same folder is the same.
    CopyOutcome Take(const Copy& copy);

    /// Restores a copy into `target`, which must be empty or absent. The pointer files that lead into the program
    /// folder of the copy then lead into `target`; returns those that lead elsewhere.
    std::vector<std::string> PutBack(const Copy& copy, const std::filesystem::path& target);

private:
    /// Files of `from` that are to be kept as a copy of `folder`.
    struct Source {
        std::filesystem::path from;
        std::filesystem::path folder;
        std::vector<std::string> files;
    };
    CopyOutcome Keep(const Source& source, const std::string& stamp);
    void Sweep() const;
    void Thin(const std::filesystem::path& folder) const;

    std::filesystem::path root_;
    std::chrono::milliseconds patience_;
};

/// The folder of the current user's copies, `zelvia/copie` in the user's state folder; empty when the environment names
/// neither that folder nor a home.
std::filesystem::path CopyFolder();

} // namespace zelvia
