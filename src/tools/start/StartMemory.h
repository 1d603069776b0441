// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>

namespace zelvia
{

/// What was said or asked at earlier starts, so that it is not said again: a small file in the user's state folder.
/// Without that folder, or when it can't be read, nothing is remembered; no call raises anything.
class StartMemory
{
public:
    explicit StartMemory(std::filesystem::path file);

    /// What was noted last of that kind for a folder; empty for nothing.
    std::string Of(const std::string& kind, const std::filesystem::path& folder) const;
    /// Notes it at once. An empty value removes the note.
    void Note(const std::string& kind, const std::filesystem::path& folder, const std::string& value);

private:
    std::filesystem::path file_;
    std::map<std::pair<std::string, std::string>, std::string> notes_;
};

/// The file of the current user; empty when the environment names no place for it.
std::filesystem::path StartMemoryFile();

} // namespace zelvia
