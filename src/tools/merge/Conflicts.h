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

/// The files of a diary that two computers can have changed.
enum class FileKind { Diary, List, Routes, Races, Table, Pointer };

/// The kind of a file by its path, from the program folder on; none for what is no file of a diary.
std::optional<FileKind> KindOfFile(std::string_view path);

/// A second version of a file, put beside it by a program that synchronises folders.
struct Conflict {
    std::string file; ///< Both from the program folder on.
    std::string original;

    friend bool operator==(const Conflict&, const Conflict&) = default;
};

/// The file that one of that name is a version of, when the name says so by itself: "prova" of
/// "prova.sync-conflict-20261101-101010-ABCDEFG.zlv", "prova (conflicted copy 2026-11-01).zlv" and their like.
std::optional<std::string> OriginalByMark(const std::string& name);

/// The conflict copies in a program folder, by their names alone. One that bears only a computer's name or a number
/// ("prova-PC.zlv", "prova (1).zlv") counts when the file without it is there and, for a diary, no folder of its own.
/// Links are left out. Raises std::filesystem::filesystem_error on a folder that can't be read.
std::vector<Conflict> FindConflicts(const std::filesystem::path& folder);

} // namespace zelvia
