// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"
#include "tools/strumenti/DiaryShelf.h"
#include "tools/strumenti/ImportSources.h"
#include "tools/strumenti/Table.h"

#include <string>
#include <vector>

namespace zelvia
{

/// What is shown of an import: the columns that programs read, and those for the runner.
Table ImportForPrograms(const std::vector<Candidate>& candidates);
Table ImportForTheRunner(const std::vector<Candidate>& candidates);

/// A status in words.
std::string StatusText(Candidate::Status status);

/// Metres as kilometres with three places; empty for none.
std::string DistanceText(int metres);

/// The distance of a day.
int MetresOf(const RecordGiorno& day);

/// The outing that a day holds, in a few words; empty for none.
std::string TextOfDay(const RecordGiorno& day);

/// What has become of the candidates, in a line.
std::string ImportReport(const std::vector<Candidate>& candidates);

/// Says what the runner should know of each candidate.
void TellRemarks(Context& context, const std::vector<Candidate>& candidates);

/// Says where the time of day of the activities comes from, and that there are pauses.
void TellClocks(Context& context, const std::vector<Candidate>& candidates);

/// What would be written, in lines.
std::string ChangesText(const DiaryShelf::Summary& changes);

/// Says what would be written; false when nothing would.
bool TellChanges(Context& context, const DiaryShelf::Summary& changes, int leftAlone);

} // namespace zelvia
