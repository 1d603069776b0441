// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ImportSources.h"

#include "core/Conversions.h"
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/exchange/Csv.h"
#include "tools/watch/FitFile.h"
#include "tools/watchxml/TrackFile.h"

#include <algorithm>
#include <filesystem>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

bool HasExtension(const fs::path& file, std::initializer_list<std::string_view> extensions)
{
    const std::string own = file.extension().string();
    return std::any_of(extensions.begin(), extensions.end(),
                       [&](std::string_view extension) { return SameText(own, extension); });
}

/// The content of a file of a size that a watch or a spreadsheet writes.
std::string ContentOf(const fs::path& file)
{
    constexpr std::uintmax_t most = 256U << 20U;
    if (!fs::exists(file)) {
        throw FileFailure(Tools::Tr("non c'è"));
    }
    if (!fs::is_regular_file(file)) {
        throw FileFailure(Tools::Tr("non è un file"));
    }
    if (fs::file_size(file) > most) {
        throw FileFailure(Tools::Tr("il file è troppo grande"));
    }
    std::string bytes = ReadFile(file);
    if (bytes.empty()) {
        throw FileFailure(Tools::Tr("il file è vuoto"));
    }
    return bytes;
}

Candidate Bad(const std::string& name, std::vector<std::string> remarks)
{
    Candidate bad;
    bad.file = name;
    bad.remarks = std::move(remarks);
    return bad;
}

/// What is odd about the day of an activity: a watch that lost its clock begins in 1989.
std::vector<std::string> RemarksOnDate(CalendarDate date)
{
    constexpr int firstYear = 2001;
    const bool odd = date.Year() < firstYear || date > Date().PlusDays(1);
    return odd ? std::vector<std::string>{Tools::Tr("l'orologio segnava il %1, forse sbagliando", PlainText(date))}
               : std::vector<std::string>();
}

Candidate FromActivity(const std::string& name, int session, Activity&& activity, const ProposalRules& rules)
{
    Candidate candidate;
    candidate.file = name;
    candidate.session = session;
    for (const RunClock clock : {RunClock::Elapsed, RunClock::Moving}) {
        candidate.splits[static_cast<std::size_t>(clock)] = KilometreTimes(activity, clock);
    }
    candidate.status = Candidate::Status::New;
    activity.track = {};
    activity.laps = {};
    candidate.activity = std::move(activity);
    Propose(candidate, rules);
    return candidate;
}

std::vector<Candidate> FromWatch(const std::string& name, WatchFile&& file, const ProposalRules& rules)
{
    if (file.activities.empty()) {
        file.faults.emplace_back(Tools::Tr("non contiene attività"));
        return {Bad(name, std::move(file.faults))};
    }
    std::vector<Candidate> candidates;
    for (Activity& activity : file.activities) {
        const int session = static_cast<int>(candidates.size()) + 1;
        candidates.push_back(FromActivity(name, session, std::move(activity), rules));
        candidates.back().damaged = !file.faults.empty();
    }
    for (const std::string& fault : file.faults) {
        candidates.front().remarks.push_back(Tools::Tr("%1; vale ciò che si è potuto leggere", fault));
    }
    return candidates;
}

/// The columns of a table; the heads that are not known are added to `unknown`.
std::vector<std::optional<DayColumn>> ColumnsOf(const std::vector<std::string>& heads, const ImportRules& rules,
                                                std::vector<std::string>& unknown)
{
    std::vector<std::optional<DayColumn>> columns;
    for (const std::string& head : heads) {
        const auto given = rules.columns.find(head);
        columns.push_back(given != rules.columns.end() ? std::optional(given->second) : ColumnOf(head));
        if (!columns.back()) {
            unknown.push_back(head);
        }
    }
    return columns;
}

Candidate FromRow(const std::string& name, int row, const std::vector<std::optional<DayColumn>>& columns,
                  const std::vector<std::string>& cells)
{
    Candidate candidate;
    candidate.file = name;
    candidate.session = row;
    try {
        candidate.incoming = IncomingOf(columns, cells);
        candidate.date = candidate.incoming->date;
        if (!PutInto(candidate.result, *candidate.incoming)) {
            candidate.remarks.emplace_back(Tools::Tr("le note non ci stanno tutte"));
        }
        candidate.status = Candidate::Status::New;
    } catch (const FileFailure& failure) {
        candidate.incoming.reset();
        candidate.remarks.emplace_back(failure.what());
    }
    return candidate;
}

/// A day has places for a hundred.
void AddSplit(Candidate& day, const KilometreTime& split)
{
    constexpr std::size_t places = 100;
    if (day.incoming->splits.size() < places) {
        day.incoming->splits.push_back(split);
    } else if (day.remarks.empty()) {
        day.remarks.emplace_back(Tools::Tr("in un giorno stanno cento tempi al chilometro"));
    }
}

/// A candidate for each day of a table of splits, and for each row that is none.
std::vector<Candidate> FromSplits(const std::string& name, const std::vector<std::vector<std::string>>& rows)
{
    std::vector<Candidate> candidates;
    std::map<CalendarDate, std::size_t> days;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        Candidate candidate = Bad(name, {});
        candidate.session = static_cast<int>(i);
        try {
            IncomingDay row = IncomingSplit(rows[i]);
            const auto [day, isNew] = days.emplace(row.date, candidates.size());
            if (!isNew) {
                AddSplit(candidates[day->second], row.splits.front());
                continue;
            }
            candidate.date = row.date;
            candidate.incoming = std::move(row);
            candidate.status = Candidate::Status::New;
        } catch (const FileFailure& failure) {
            candidate.remarks.emplace_back(failure.what());
        }
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

std::vector<Candidate> FromTable(const std::string& name, std::string_view bytes, const ImportRules& rules)
{
    const std::vector<std::vector<std::string>> rows = ReadCsv(bytes);
    if (rows.empty()) {
        throw FileFailure(Tools::Tr("la tabella è vuota"));
    }
    if (HoldsSplits(rows)) {
        return FromSplits(name, rows);
    }
    std::vector<std::string> unknown;
    const auto columns = ColumnsOf(rows.front(), rules, unknown);
    std::vector<Candidate> candidates;
    if (std::count(columns.begin(), columns.end(), std::optional(DayColumn::Date)) != 1) {
        candidates.push_back(Bad(name, {Tools::Tr("nella prima riga deve esserci una colonna «date»")}));
    } else if (rows.size() == 1) {
        candidates.push_back(Bad(name, {Tools::Tr("la tabella non ha righe sotto la prima")}));
    } else {
        for (std::size_t i = 1; i < rows.size(); ++i) {
            candidates.push_back(FromRow(name, static_cast<int>(i), columns, rows[i]));
        }
    }
    candidates.front().unknown = std::move(unknown);
    return candidates;
}

} // namespace

bool IsUnreadable(const Candidate& candidate)
{
    return !candidate.activity && !candidate.incoming;
}

std::vector<std::string> RemarksOn(const Candidate& candidate)
{
    std::vector<std::string> remarks = candidate.remarks;
    const auto add = [&](const std::vector<std::string>& more) {
        remarks.insert(remarks.end(), more.begin(), more.end());
    };
    if (candidate.activity) {
        add(RemarksOnDate(candidate.date));
        add(candidate.proposal.remarks);
    }
    add(candidate.judging);
    return remarks;
}

void Propose(Candidate& candidate, const ProposalRules& rules)
{
    const DayCorrections& said = candidate.corrections;
    if (candidate.incoming) {
        candidate.date = said.date.value_or(candidate.incoming->date);
    }
    if (!candidate.activity) {
        return;
    }
    ProposalRules own = rules;
    own.clock = said.clock.value_or(rules.clock);
    DayProposal& proposal = candidate.proposal;
    proposal = ProposeDay(*candidate.activity, own, candidate.splits[static_cast<std::size_t>(own.clock)]);
    if (said.date) {
        proposal.date = *said.date;
        proposal.season = SeasonOf(proposal.date);
    }
    candidate.date = proposal.date;
    candidate.result = {};
    PutInto(candidate.result, proposal);
    PutInto(candidate.result, said);
}

bool IsTable(const std::string& name)
{
    return HasExtension(name, {".csv", ".tsv", ".txt"});
}

std::vector<std::string> ExpandFolders(const std::vector<std::string>& names)
{
    std::vector<std::string> files;
    for (const std::string& name : names) {
        if (!fs::is_directory(name)) {
            files.push_back(name);
            continue;
        }
        for (const std::string& file : FilesBelow(name)) {
            if (HasExtension(file, {".fit", ".tcx", ".gpx"})) {
                files.push_back((fs::path(name) / file).string());
            }
        }
    }
    return files;
}

std::vector<Candidate> CandidatesOf(const std::string& name, const ImportRules& rules)
{
    try {
        const std::string bytes = ContentOf(name);
        if (IsFit(bytes)) {
            return FromWatch(name, ReadFit(bytes), rules.proposal);
        }
        if (IsTable(name)) {
            return FromTable(name, bytes, rules);
        }
        if (IsXml(bytes)) {
            return FromWatch(name, ReadTrackFile(bytes), rules.proposal);
        }
        return {Bad(name, {Tools::Tr("non è un file FIT, TCX, GPX o CSV")})};
    } catch (const FileFailure& failure) {
        return {Bad(name, {failure.what()})};
    } catch (const fs::filesystem_error& error) {
        return {Bad(name, {FileFailure(error.path1(), error.code().value()).what()})};
    }
}

} // namespace zelvia
