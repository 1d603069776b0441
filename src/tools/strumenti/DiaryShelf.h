// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/RecordGiorno.h"
#include "diary/SelectionLists.h"
#include "tools/strumenti/Context.h"
#include "tools/watch/ImportHistory.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace zelvia
{

/// The diaries of a folder by their years. Days change in memory until they are written together.
class DiaryShelf
{
public:
    /// Reads every diary once. One that can't be read is said and left alone, unless it is the chosen one: that raises
    /// FileFailure.
    explicit DiaryShelf(Context& context);

    /// The day of a date. The year gets a diary of its own when it has none. Raises FileFailure when that can't be.
    RecordGiorno& Day(CalendarDate date);

    /// True for a date that has a race in the calendar of its year's diary.
    bool IsRaceDay(CalendarDate date);

    /// The routes of that year's diary whose length is known.
    const std::vector<RouteCandidate>& Routes(int year);

    /// The entries of a list of that year's diary; those of the present one for a new year.
    std::vector<Text> Entries(int year, SelectionList list);

    /// The day of a date, null in a year without a diary.
    const RecordGiorno* Find(CalendarDate date);

    /// The day of that date is to be written.
    void Touch(CalendarDate date);

    /// The diaries to be written, those of them that are new, and how many days that are.
    struct Summary {
        std::vector<std::string> diaries;
        std::vector<std::string> fresh;
        int days = 0;
    };
    Summary Changes() const;

    /// Prepares the diaries that have touched days.
    void Prepare(FileSet& files) const;

private:
    struct Shelved {
        std::string diary;
        bool fresh = false;
        Text folder;                    ///< Of the lists.
        std::vector<RecordGiorno> days; ///< 0..366
        std::vector<RouteCandidate> routes;
        std::set<CalendarDate> races;
        std::set<CalendarDate> touched;
    };

    Shelved& Year(int year);
    void Read(Shelved& shelved) const;
    void MakeBlank(Shelved& shelved, int year) const;
    bool OpensAtStart(int year) const;

    Context& context_;
    std::string present_;
    std::map<int, std::string> diaries_;
    std::map<int, Shelved> years_;
};

} // namespace zelvia
