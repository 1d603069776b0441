// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ImportJudge.h"

#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/ImportTexts.h"

#include <algorithm>

namespace zelvia
{
namespace
{

using Status = Candidate::Status;

/// The day with the cells of a table.
RecordGiorno Filled(Candidate& candidate, const RecordGiorno& day)
{
    RecordGiorno result = day;
    try {
        PutInto(result, *candidate.incoming);
    } catch (const FileFailure& failure) {
        candidate.status = Status::Bad;
        candidate.judging.emplace_back(failure.what());
        return day;
    }
    candidate.status = result == day ? Status::Same : LostFields(day, result).empty() ? Status::New : Status::Other;
    return result;
}

} // namespace

ImportedActivity ImportedOf(const Candidate& candidate)
{
    ImportedActivity imported;
    imported.moment = candidate.activity->start;
    imported.date = candidate.date;
    imported.metres = MetresOf(candidate.result);
    imported.place = candidate.activity->place;
    imported.route = candidate.result.Percorso;
    return imported;
}

void ImportJudge::Look(Candidate& candidate)
{
    if (IsUnreadable(candidate)) {
        return;
    }
    candidate.held = candidate.result = {};
    candidate.written = false;
    candidate.present.clear();
    candidate.judging.clear();
    if (candidate.activity && !all_ && !candidate.chosen.value_or(false) && !IsRun(*candidate.activity)) {
        candidate.status = Status::Rest;
        PutInto(candidate.result, candidate.proposal);
        return;
    }
    try {
        Compare(candidate);
    } catch (const FileFailure& failure) {
        candidate.status = Status::Bad;
        candidate.judging.emplace_back(failure.what());
    }
}

void ImportJudge::Compare(Candidate& candidate)
{
    if (IsOnAnotherDay(candidate)) {
        return;
    }
    RecordGiorno& day = shelf_.Day(candidate.date);
    candidate.held = day;
    candidate.present = TextOfDay(day);
    candidate.result = candidate.activity ? Proposed(candidate, day) : Filled(candidate, day);
    if (candidate.status == Status::Bad) {
        return;
    }
    PutInto(candidate.result, candidate.corrections);
    const bool isNew = candidate.status == Status::New;
    const bool other = candidate.status == Status::Other;
    const bool twice = taken_.contains(candidate.date) && !isNew;
    candidate.written = candidate.chosen.value_or(isNew || (other && overwrite_)) && !twice;
    if (candidate.written) {
        Take(candidate, day);
        return;
    }
    leftAlone_ += other ? 1 : 0;
    if (other && twice) {
        candidate.judging.emplace_back(Tools::Tr("è un'altra uscita dello stesso giorno, e nel diario ne sta una"));
    }
}

/// It came in before, into a day that the runner gave it, and which still holds an outing.
bool ImportJudge::IsOnAnotherDay(Candidate& candidate)
{
    if (!candidate.activity || candidate.corrections.date) {
        return false;
    }
    for (const ImportedActivity& earlier : imported_) {
        const bool elsewhere = earlier.moment == candidate.activity->start && earlier.date != candidate.date;
        const RecordGiorno* const day = elsewhere ? shelf_.Find(earlier.date) : nullptr;
        if (day != nullptr && HoldsRun(*day)) {
            candidate.status = Status::Same;
            candidate.held = candidate.result = *day;
            candidate.present = TextOfDay(*day);
            candidate.judging.push_back(Tools::Tr("è già nel giorno %1", PlainText(earlier.date)));
            return true;
        }
    }
    return false;
}

void ImportJudge::Take(const Candidate& candidate, RecordGiorno& day)
{
    day = candidate.result;
    shelf_.Touch(candidate.date);
    taken_.insert(candidate.date);
    if (candidate.activity) {
        imported_.push_back(ImportedOf(candidate));
    }
}

/// The day as the activity would make it.
RecordGiorno ImportJudge::Proposed(Candidate& candidate, const RecordGiorno& day)
{
    DayProposal& proposal = candidate.proposal;
    if (shelf_.IsRaceDay(candidate.date)) {
        proposal.type = "Gara";
    }
    if (day.Percorso.empty()) {
        proposal.route = RouteOf(candidate);
    }
    RecordGiorno result = day;
    if (HoldsRun(day) && (HoldsSame(day, proposal) || WasImported(candidate, day))) {
        candidate.status = Status::Same;
    } else {
        candidate.status = HoldsRun(day) ? Status::Other : Status::New;
        PutInto(result, proposal);
    }
    return result;
}

Text ImportJudge::RouteOf(const Candidate& candidate)
{
    std::vector<RouteCandidate> routes = shelf_.Routes(candidate.date.Year().value());
    for (const ImportedActivity& earlier : imported_) {
        if (earlier.place && IsOfLength(*candidate.activity, earlier.metres)) {
            routes.push_back({earlier.route, earlier.metres, earlier.place});
        }
    }
    return ProposeRoute(*candidate.activity, routes);
}

/// It came in before, and the day still shows it though the start or the distance was corrected.
bool ImportJudge::WasImported(const Candidate& candidate, const RecordGiorno& day) const
{
    constexpr int kilometre = 1000;
    const DayProposal& proposal = candidate.proposal;
    const bool holds = StartOf(day) == proposal.start || MetresOf(day) == proposal.km * kilometre + proposal.metres;
    return std::any_of(imported_.begin(), imported_.end(), [&](const ImportedActivity& earlier) {
        return earlier.moment == candidate.activity->start && earlier.date == candidate.date &&
               (holds || earlier.metres == MetresOf(day));
    });
}

} // namespace zelvia
