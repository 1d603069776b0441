// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/exchange/IncomingDay.h"
#include "tools/strumenti/DayCorrections.h"
#include "tools/watch/DayProposal.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// Something that may become a day, or a file of which nothing can.
struct Candidate {
    enum class Status { New, Same, Other, Rest, Bad };

    std::string file; ///< As the runner named it.
    int session = 0;  ///< Counted from 1 in its file; the row of a table. 0 for a file that gave nothing.
    Status status = Status::Bad;
    CalendarDate date;
    bool damaged = false;             ///< Of its file something could not be read.
    std::vector<std::string> remarks; ///< What the runner should know of the file: Italian, UTF-8.
    std::vector<std::string> unknown; ///< Heads of a table of which no column is known, with its first row.

    // Of a watch's file; points and laps are no longer needed.
    std::optional<Activity> activity;
    std::array<std::vector<KilometreTime>, 2> splits; ///< On each clock.
    DayProposal proposal;

    // Of a table.
    std::optional<IncomingDay> incoming;

    // What the runner says.
    DayCorrections corrections;
    std::optional<bool> chosen; ///< Whether it is to be written; none to go by its status.

    // Beside its day.
    RecordGiorno held;                ///< The day as it is.
    RecordGiorno result;              ///< The day as it would be, or as its row alone says.
    bool written = false;             ///< The result goes into the diary.
    std::string present;              ///< What the day holds, for the runner to read; empty when no outing.
    std::vector<std::string> judging; ///< Remarks on the day.
};

/// Nothing could be read of it.
bool IsUnreadable(const Candidate& candidate);

/// All remarks on it.
std::vector<std::string> RemarksOn(const Candidate& candidate);

/// How files are to be read.
struct ImportRules {
    ProposalRules proposal;
    std::map<std::string, DayColumn> columns; ///< Heads of a table that can't be recognised by name.
};

/// Puts in the place of each folder the files of watches below it, in order.
std::vector<std::string> ExpandFolders(const std::vector<std::string>& names);

/// What a file holds. What can't be read comes as a candidate that is bad.
std::vector<Candidate> CandidatesOf(const std::string& name, const ImportRules& rules);

/// True for the name of a table.
bool IsTable(const std::string& name);

/// Proposes the day of an activity, by these rules and what the runner says.
void Propose(Candidate& candidate, const ProposalRules& rules);

} // namespace zelvia
