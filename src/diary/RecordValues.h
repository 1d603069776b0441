// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/RecordGiorno.h"

#include <compare>
#include <vector>

namespace zelvia
{

/// What a diary is made of. The letters are those of the journal.
enum class RecordKind : char { Day = 'G', List = 'L', Route = 'P', Race = 'C' };

/// A day 1..366, a list by its number, a route 1..200 or a row of the calendar 1..100.
struct RecordKey {
    RecordKind kind = RecordKind::Day;
    int index = 0;

    friend auto operator<=>(const RecordKey&, const RecordKey&) = default;
};

/// True for one of those; of the lists for those that have a file.
bool IsRecord(RecordKey key);

/// All routes, all rows of the calendar or all lists that have a file.
std::vector<RecordKey> RecordsOf(RecordKind kind);

/// The values of a record in the order of its file, as texts: 0 and blank are empty, dates are ISO. But for a list the
/// blank ones at the end are left out.
using Values = std::vector<Text>;

Values ValuesOf(const RecordGiorno& day);

// Records in the memory of the open diary. A key that is none raises error 9.

Values ValuesOf(RecordKey key);
/// True when ValuesOf would be those.
bool Holds(RecordKey key, const Values& values);
/// Puts values into a record, which stays as it is when they are none of its kind: that raises error 13 or 6.
void Restore(RecordKey key, const Values& values);
/// The same for a day that lies elsewhere.
void Restore(RecordGiorno& day, const Values& values);

/// True when the runner would see no difference: the day's number and date, and a time that is none, count for nothing.
bool SameEntry(const RecordGiorno& one, const RecordGiorno& other);

} // namespace zelvia
