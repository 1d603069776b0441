// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/JournalFile.h"
#include "diary/JournalLines.h"
#include "diary/RecordValues.h"

#include <memory>
#include <string>
#include <vector>

namespace zelvia
{

/// A record that the journal holds and its file does not.
struct UnsavedRecord {
    RecordKey key;
    Values before; ///< What the file held when the change was noted.
    Values after;
    bool offered = false;
    bool conflict = false; ///< The file holds something else by now, or can't be read.
};

struct UnsavedDiary {
    JournalDiary journal; ///< What the journal says of it, its changes included.
    std::string name;     ///< As the tools know it, such as "prova"; empty for one outside the folder.
    bool missing = false; ///< Its file is no longer there.
    std::vector<UnsavedRecord> records;
};

/// The journal of a program folder beside its diaries.
struct UnsavedRecords {
    std::shared_ptr<JournalFile> file; ///< Open as long as it is worked on; null without a journal.
    std::vector<UnsavedDiary> diaries; ///< Those with unsaved records.
    int unreadable = 0;                ///< Damaged lines of the journal.
    bool busy = false;                 ///< There is a journal but it can't be opened: the program writes to it.
};

/// Reads both, with Module1's memory as the place for what the files hold. `programFolder` in backslash form.
UnsavedRecords ReadUnsaved(TextView programFolder);

/// Reads a file of the diary into memory: the year, or all records of a kind. A list or a file that is missing holds
/// what the program begins with. False when it can't be read.
bool ReadRecords(const JournalDiary& diary, RecordKind kind);

/// A field that a change concerns, UTF-8.
struct ChangedField {
    std::string date; ///< ISO; empty where there is none.
    std::string name;
    std::string before;
    std::string after;
};
std::vector<ChangedField> FieldsOf(const UnsavedRecord& record);

/// What it is called: "mercoledì 20 maggio 2026", "lista Percorso".
std::string TitleOf(const UnsavedRecord& record);
/// The word by which it is asked for: the ISO date, or one for all of a kind.
std::string WordOf(const UnsavedRecord& record);

} // namespace zelvia
