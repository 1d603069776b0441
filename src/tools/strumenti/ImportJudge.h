// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/DiaryShelf.h"
#include "tools/strumenti/ImportSources.h"

#include <set>
#include <vector>

namespace zelvia
{

/// What is to be remembered of an activity that was written; its folder is not set.
ImportedActivity ImportedOf(const Candidate& candidate);

/// Looks at each candidate beside its day, and puts into the days what is to be written.
class ImportJudge
{
public:
    /// `all`: activities that are no runs too. `overwrite`: days that hold something else too.
    ImportJudge(DiaryShelf& shelf, std::vector<ImportedActivity> imported, bool all, bool overwrite)
        : shelf_(shelf), imported_(std::move(imported)), all_(all), overwrite_(overwrite)
    {
    }

    /// Sets the candidate's status and what goes with it. It is bad, too, when its year can't have a diary.
    void Look(Candidate& candidate);

    /// How many days hold something else and stay as they are.
    int LeftAlone() const { return leftAlone_; }

private:
    void Compare(Candidate& candidate);
    bool IsOnAnotherDay(Candidate& candidate);
    void Take(const Candidate& candidate, RecordGiorno& day);
    RecordGiorno Proposed(Candidate& candidate, const RecordGiorno& day);
    Text RouteOf(const Candidate& candidate);
    bool WasImported(const Candidate& candidate, const RecordGiorno& day) const;

    DiaryShelf& shelf_;
    std::vector<ImportedActivity> imported_;
    std::set<CalendarDate> taken_;
    bool all_;
    bool overwrite_;
    int leftAlone_ = 0;
};

} // namespace zelvia
