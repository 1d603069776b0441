// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "tools/merge/Conflicts.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// Which of two versions of a file has changed a part of it since their common base.
enum class Side { Here, There, Both };

/// A value that differs between the two versions.
struct SideField {
    int line = 0; ///< Of the part, from 0; for days the name says it.
    Text name;
    Text base; ///< Without quotes; empty for what is blank or absent.
    Text here;
    Text there;
};

/// A part that differs: a day, an entry of a list, a route, a race, a whole table.
struct SideChange {
    Side side = Side::Both;
    int here = 0; ///< Its place in either file, from 1; 0 when it is absent there.
    int there = 0;
    Text name;
    std::string date; ///< ISO; empty for what has none.
    std::vector<SideField> fields;
    bool taken = false; ///< To be as it is there. At first for what has changed there alone.
};

/// True when a file has as many lines as its kind requires.
bool IsWhole(FileKind kind, TextView bytes);

/// The year that most days of a diary have, 0 without dates.
int YearOfDiary(TextView bytes);

/// Compares the two versions of a file part by part, each with what the base has. Days belong together by their place,
/// entries of a list and routes by their name in any case, races by their date, or their name before they have one.
/// Without a base every day, race, route or table that both have differently counts as changed on both sides; what only
/// one has was added there. The files must be whole.
std::vector<SideChange> CompareSides(FileKind kind, const std::optional<Text>& base, const Text& here,
                                     const Text& there);

/// The file here with the changes that are to be taken. A route or race goes to its place there if that is free, else
/// to the first free one; those for which no place is left are no longer `taken`. What is new in a list is appended.
Text MergedFile(FileKind kind, const std::optional<Text>& base, const Text& here, const Text& there,
                std::vector<SideChange>& changes);

/// Which of the copies, the oldest first, is the last that both versions come from; none without a whole one. Copies
/// follow one of the versions only from the moment on where they parted, and from then on differ from the other more
/// and more: so of each version the copy nearest to it is sought, of several the oldest, and the older of these two is
/// the base. One that is too old makes more parts count as changed on both sides; one that is too new could undo a day.
std::optional<std::size_t> FindBase(FileKind kind, const std::vector<Text>& copies, const Text& here,
                                    const Text& there);

} // namespace zelvia
