// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/RecordValues.h"

#include <cstdint>
#include <map>
#include <vector>

namespace zelvia
{

// The journal is a file of lines: a checksum of 16 digits, a tab, the letter of what follows and its parts, separated
// by tabs, with \t, \n, \r and \\ for what would be taken for a separator. A line whose checksum is wrong, as the last
// one after a power cut, is ignored.
//
//   S version folder diary companions new   a session with that diary begins
//   G L P C index count before... count after...   a record has changed
//   V letter index                          it was saved, with index 0 all of that letter
//   O                                       all above has been offered

/// A record as the file of the diary has it, and as it would be after saving.
struct JournalChange {
    Values before;
    Values after;
    bool offered = false;

    friend bool operator==(const JournalChange&, const JournalChange&) = default;
};

/// What the journal knows of a diary.
struct JournalDiary {
    Text folder;        ///< The program folder.
    Text file;          ///< The full path of the diary.
    Text companions;    ///< The folder of its lists, routes and calendar.
    bool fresh = false; ///< There was no file yet.
    std::map<RecordKey, JournalChange> changes;

    friend bool operator==(const JournalDiary&, const JournalDiary&) = default;
};

struct JournalContent {
    std::vector<JournalDiary> diaries;
    int unreadable = 0; ///< Lines that were ignored.
};

/// 16 digits.
Text Hexadecimal(std::uint64_t number);

/// FNV-1a, 64 bits.
std::uint64_t ChecksumOf(TextView bytes);

/// A line with its checksum and its end.
Text CheckedLine(TextView payload);

// Lines of a journal.
Text SessionLine(const JournalDiary& diary);
Text ChangeLine(RecordKey key, const Values& before, const Values& after);
Text SavedLine(RecordKind kind, int index);
Text OfferedLine();

/// What all lines say together: of each record what it was first and what it became last.
JournalContent ReadJournal(TextView bytes);

/// The same content in as few lines as possible.
Text JournalBytes(const JournalContent& content);

} // namespace zelvia
