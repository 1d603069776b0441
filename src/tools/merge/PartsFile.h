// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "tools/merge/Conflicts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zelvia
{

using FileLines = std::vector<TextView>;

/// What a line holds, empty for what it holds before anything is entered.
Text ValueOf(TextView line);

/// The bytes of a file of these lines.
Text Joined(const FileLines& lines);

/// Empty for one without a day.
std::string DateOfRace(const TextView* race);

/// A file in its parts. It refers to the bytes that it was made of.
class PartsFile
{
public:
    PartsFile(FileKind kind, TextView bytes);

    const FileLines& AllLines() const { return lines_; }
    std::size_t LinesOfPart() const { return count_; }
    int Parts() const { return count_ == 0 ? 0 : static_cast<int>(lines_.size() / count_); }
    TextView* Part(int place) { return &lines_[static_cast<std::size_t>(place - 1) * count_]; }
    const TextView* Part(int place) const { return &lines_[static_cast<std::size_t>(place - 1) * count_]; }

    bool IsFree(int place) const;

    /// The place for a part that is at `place` in the other version, 0 when all are taken.
    int FreePlace(int place) const;

    /// Puts a part of the other version in; a race's number is that of its place.
    void Put(int place, const TextView* part);

    void Blank(int place);

    void Append(TextView line) { lines_.push_back(line); }
    void Erase(int place) { lines_.erase(lines_.begin() + (place - 1)); }

    /// The lines of a part that say nothing of it.
    std::size_t Numbered() const { return kind_ == FileKind::Races ? 1 : 0; }

private:
    FileKind kind_;
    FileLines lines_;
    std::size_t count_;
};

} // namespace zelvia
