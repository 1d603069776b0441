// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The journal of what was not saved: the input is taken as it is, and as lines whose checksums are right.
#include "Harness.h"
#include "diary/JournalFile.h"
#include "diary/JournalLines.h"
#include "diary/UnsavedRecords.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

Text WithChecksums(TextView input)
{
    Text bytes;
    while (!input.empty()) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        bytes += CheckedLine(input.substr(0, end));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    return bytes;
}

/// What is written of a journal says the same, diary by diary.
void RequireReturn(const JournalContent& content)
{
    const JournalContent back = ReadJournal(JournalBytes(content));
    Require(back.unreadable == 0, "every line that is written is read");
    for (const JournalDiary& diary : content.diaries) {
        const bool found = std::find(back.diaries.begin(), back.diaries.end(), diary) != back.diaries.end();
        Require(found || diary.changes.empty(), "a diary comes back");
    }
}

/// A change can be told, and brought back or refused.
void RequireUse(RecordKey key, const JournalChange& change)
{
    const UnsavedRecord record{key, change.before, change.after};
    Require(!TitleOf(record).empty(), "it has a title");
    FieldsOf(record);
    RequireError(RaisedBy([&] {
                     Restore(key, change.after);
                     Values restored = ValuesOf(key);
                     Require(Holds(key, restored), "what it holds is what it is");
                 }),
                 {Errore::Overflow, Errore::TipoNonCorrispondente});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text input = InputText(data, size);
    for (const Text& bytes : {input, WithChecksums(input)}) {
        const JournalContent content = ReadJournal(bytes);
        RequireReturn(content);
        for (const JournalDiary& diary : content.diaries) {
            for (const auto& [key, change] : diary.changes) {
                Require(change.before != change.after, "a change changes something");
                RequireUse(key, change);
            }
        }
    }
    return 0;
}
