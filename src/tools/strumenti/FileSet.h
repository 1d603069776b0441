// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// Several files of a program folder that change together: all of them or none, whatever ends the process or the
/// computer. They are prepared in a temporary folder in there, whose name can't be guessed; Apply gives that folder its
/// last name, from which on the change is to be made: what a process leaves undone the next one completes. A file that
/// has become another one meanwhile is left alone. No link is followed. Everything raises FileFailure or
/// std::filesystem::filesystem_error. The caller holds the lock of the program in that folder.
class FileSet
{
public:
    /// `label` tells the change to the one that completes it.
    FileSet(std::filesystem::path folder, std::string label);
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    ~FileSet();

    /// Where to write the file's new content. `file` starts from the program folder.
    std::filesystem::path PlaceOf(const std::filesystem::path& file);
    /// The same for content in memory, which is written.
    std::filesystem::path Write(const std::filesystem::path& file, std::string_view bytes);
    /// The same for the content of another file of the folder.
    void Copy(const std::filesystem::path& from, const std::filesystem::path& to);
    /// The file goes, after all others have changed.
    void Remove(const std::filesystem::path& file);

    /// Changes the files, which keep their permissions. Returns those that were left alone.
    std::vector<std::string> Apply();

    struct Completion {
        std::string label;
        std::vector<std::string> leftAlone;
    };

    /// Completes the change that a process has left undone; none when there is no such change.
    static std::optional<Completion> Complete(const std::filesystem::path& folder);
    /// True when there is one.
    static bool IsPending(const std::filesystem::path& folder);
    /// Removes the temporary folders that other processes have left.
    static void Sweep(const std::filesystem::path& folder);

private:
    void KeepBefore(const std::filesystem::path& file);

    std::filesystem::path folder_;
    std::string label_;
    std::filesystem::path temporary_;
};

/// Raises FileFailure when the file, or a folder on the way to it from `folder`, is a link.
void RefuseLinks(const std::filesystem::path& folder, const std::filesystem::path& file);

} // namespace zelvia
