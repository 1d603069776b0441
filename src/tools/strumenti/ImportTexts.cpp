// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ImportTexts.h"

#include "core/Conversions.h"
#include "core/Tr.h"
#include "tools/exchange/CellTexts.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <numeric>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using Status = Candidate::Status;

constexpr int kKilometre = 1000;

struct StatusNames {
    std::string_view name;
    const char* told;
    const char* report; ///< Of several that were not written.
};

/// In the order of the statuses.
constexpr std::array<StatusNames, 5> kStatuses = {
    {{"new", Tools::Mark("nuovo"), Tools::Mark("Lasciati: %1.")},
     {"same", Tools::Mark("c'è già"), Tools::Mark("C'erano già: %1.")},
     {"other", Tools::Mark("c'è altro"), Tools::Mark("C'è altro: %1.")},
     {"rest", Tools::Mark("non è una corsa"), Tools::Mark("Non sono corse: %1.")},
     {"bad", Tools::Mark("non si legge"), Tools::Mark("Non si leggono: %1.")}}};

const StatusNames& NamesOf(Status status)
{
    return kStatuses[static_cast<std::size_t>(status)];
}

std::string SplitsText(const std::vector<KilometreTime>& splits)
{
    std::string text;
    for (const KilometreTime& split : splits) {
        text += (text.empty() ? "" : ";") + std::to_string(split.km) + "=" + ClockText(split.seconds);
    }
    return text;
}

/// What is shown of a candidate from any source.
struct Shown {
    int start = 0;
    int end = 0;
    int metres = 0;
    int time = 0;
    int moving = 0;
    std::string splits;
};

Shown ShownOf(const Candidate& candidate)
{
    const RecordGiorno& day = candidate.result;
    Shown shown;
    if (!candidate.activity) {
        shown.start = StartOf(day);
        shown.end = EndOf(day);
        shown.metres = MetresOf(day);
        shown.time = shown.moving = std::max(shown.end - shown.start, 0);
        shown.splits = SplitsText(candidate.incoming->splits);
        return shown;
    }
    const DayProposal& proposal = candidate.proposal;
    shown.start = proposal.start;
    shown.end = proposal.end;
    shown.metres = proposal.km * kKilometre + proposal.metres;
    shown.time = proposal.end > 0 ? proposal.end - proposal.start : proposal.elapsed;
    shown.moving = proposal.moving;
    shown.splits = SplitsText(proposal.splits);
    return shown;
}

std::string SourceOf(const Candidate& candidate)
{
    if (!candidate.activity) {
        return Tools::Tr("della tabella");
    }
    switch (candidate.proposal.source) {
    case ClockSource::File: return Tools::Tr("dell'orologio");
    case ClockSource::Computer: return Tools::Tr("del computer");
    case ClockSource::Given: break;
    }
    return Tools::Tr("indicata");
}

int CountOf(const std::vector<Candidate>& candidates, auto&& wanted)
{
    return static_cast<int>(std::count_if(candidates.begin(), candidates.end(), wanted));
}

std::string Joined(const std::vector<std::string>& words)
{
    return std::accumulate(words.begin(), words.end(), std::string(), [](const std::string& text, const auto& word) {
        return text.empty() ? word : text + ", " + word;
    });
}

} // namespace

std::string StatusText(Status status)
{
    return Tools::Tr(NamesOf(status).told);
}

std::string DistanceText(int metres)
{
    return metres == 0 ? "" : Format(i32(metres / kKilometre), "0") + "," + Format(i32(metres % kKilometre), "000");
}

int MetresOf(const RecordGiorno& day)
{
    return day.Km.value() * kKilometre + day.Metri.value();
}

Table ImportForPrograms(const std::vector<Candidate>& candidates)
{
    Table table{{{"file", ""},
                 {"session", ""},
                 {"date", ""},
                 {"start", ""},
                 {"end", ""},
                 {"km", ""},
                 {"metres", ""},
                 {"time", ""},
                 {"moving", ""},
                 {"splits", ""},
                 {"status", ""}},
                {}};
    for (const Candidate& candidate : candidates) {
        std::vector<std::string> row{candidate.file, std::to_string(candidate.session)};
        if (candidate.status == Status::Bad) {
            row.resize(table.columns.size() - 1);
        } else {
            const Shown shown = ShownOf(candidate);
            for (std::string& cell :
                 std::vector{Format(candidate.date, "yyyy-mm-dd"), ClockText(shown.start), ClockText(shown.end),
                             std::to_string(shown.metres / kKilometre), std::to_string(shown.metres % kKilometre),
                             ClockText(shown.time), ClockText(shown.moving), shown.splits}) {
                row.push_back(std::move(cell));
            }
        }
        row.emplace_back(NamesOf(candidate.status).name);
        table.rows.push_back(std::move(row));
    }
    return table;
}

Table ImportForTheRunner(const std::vector<Candidate>& candidates)
{
    Table table{{{"", Tools::Mark("File")},
                 {"", Tools::Mark("N."), true},
                 {"", Tools::Mark("Giorno")},
                 {"", Tools::Mark("Inizio"), true},
                 {"", Tools::Mark("Fine"), true},
                 {"", Tools::Mark("Ora")},
                 {"", Tools::Mark("Km"), true},
                 {"", Tools::Mark("Tempo"), true},
                 {"", Tools::Mark("In moto"), true},
                 {"", Tools::Mark("Percorso")},
                 {"", Tools::Mark("Esito")},
                 {"", Tools::Mark("Nel diario")}},
                {}};
    for (const Candidate& candidate : candidates) {
        const std::string file = fs::path(candidate.file).filename().string();
        const std::string told = StatusText(candidate.status);
        if (candidate.status == Status::Bad) {
            table.rows.push_back({file, std::to_string(candidate.session), "", "", "", "", "", "", "", "", told, ""});
            continue;
        }
        const Shown shown = ShownOf(candidate);
        table.rows.push_back({file, std::to_string(candidate.session), PlainText(candidate.date),
                              ClockText(shown.start), ClockText(shown.end), SourceOf(candidate),
                              DistanceText(shown.metres), ClockText(shown.time), ClockText(shown.moving),
                              ToUtf8(candidate.result.Percorso), told, candidate.present});
    }
    return table;
}

std::string TextOfDay(const RecordGiorno& day)
{
    if (!HoldsRun(day)) {
        return {};
    }
    std::string text;
    const std::string distance = DistanceText(MetresOf(day));
    for (const std::string& part :
         {ToUtf8(day.Percorso), distance.empty() ? distance : distance + " km", ToUtf8(day.TempoImpiegato)}) {
        text += (text.empty() || part.empty() ? "" : ", ") + part;
    }
    return text;
}

std::string ImportReport(const std::vector<Candidate>& candidates)
{
    const int written = CountOf(candidates, [](const Candidate& candidate) { return candidate.written; });
    std::string report = Tools::Tr("Scritti: %1.", written);
    for (const Status status : {Status::Same, Status::Other, Status::New, Status::Rest, Status::Bad}) {
        const int count = CountOf(
            candidates, [&](const Candidate& candidate) { return candidate.status == status && !candidate.written; });
        if (count > 0) {
            report += " " + Tools::Tr(NamesOf(status).report, count);
        }
    }
    return report;
}

void TellRemarks(Context& context, const std::vector<Candidate>& candidates)
{
    for (const Candidate& candidate : candidates) {
        std::vector<std::string> remarks = RemarksOn(candidate);
        for (const std::string& head : candidate.unknown) {
            remarks.push_back(Tools::Tr(
                "la colonna «%1» non si conosce e non viene letta; --colonna «%1=NOME» dice che cos'è", head));
        }
        for (const std::string& remark : remarks) {
            context.Err() << "«" << candidate.file << "»"
                          << (candidate.session > 0 ? ", n. " + std::to_string(candidate.session) : "") << ": "
                          << remark << ".\n";
        }
    }
}

void TellClocks(Context& context, const std::vector<Candidate>& candidates)
{
    const auto by = [&](ClockSource source) {
        return CountOf(candidates, [&](const Candidate& candidate) {
            return candidate.activity && candidate.proposal.source == source;
        });
    };
    const std::pair<ClockSource, const char*> texts[] = {
        {ClockSource::File, Tools::Mark("L'ora di %1 attività è quella dell'orologio, scritta nel file.")},
        {ClockSource::Computer,
         Tools::Mark(
             "L'ora di %1 attività è quella del computer in quel momento, perché il file dice solo l'ora UTC.")},
        {ClockSource::Given, Tools::Mark("L'ora di %1 attività è quella indicata con --fuso.")}};
    for (const auto& [source, text] : texts) {
        if (const int count = by(source); count > 0) {
            context.Told() << Tools::Tr(text, count) << "\n";
        }
    }
    const int paused = CountOf(candidates, [](const Candidate& candidate) {
        return candidate.activity && candidate.proposal.elapsed > candidate.proposal.moving;
    });
    if (paused > 0) {
        context.Told() << Tools::Tr("Ci sono pause in %1 attività: di solito il tempo le comprende, con --in-moto no.",
                                    paused)
                       << "\n";
    }
}

std::string ChangesText(const DiaryShelf::Summary& changes)
{
    if (changes.days == 0) {
        return Tools::Tr("Non c'è niente da scrivere.") + "\n";
    }
    const std::string diaries = Joined(changes.diaries);
    std::string text = (changes.days == 1 ? Tools::Tr("Da scrivere: 1 giorno (%1).", diaries)
                                          : Tools::Tr("Da scrivere: %1 giorni (%2).", changes.days, diaries)) +
                       "\n";
    if (!changes.fresh.empty()) {
        const std::string fresh = Joined(changes.fresh);
        text +=
            (changes.fresh.size() == 1 ? Tools::Tr("Diario nuovo: %1.", fresh) : Tools::Tr("Diari nuovi: %1.", fresh)) +
            "\n";
    }
    return text;
}

bool TellChanges(Context& context, const DiaryShelf::Summary& changes, int leftAlone)
{
    if (leftAlone > 0) {
        context.Err()
            << (leftAlone == 1
                    ? Tools::Tr("In 1 giorno il diario ha già altro, che resta com'è; --sovrascrivi lo sostituisce.")
                    : Tools::Tr("In %1 giorni il diario ha già altro, che resta com'è; --sovrascrivi lo sostituisce.",
                                leftAlone))
            << "\n";
    }
    context.Told() << ChangesText(changes);
    return changes.days > 0;
}

} // namespace zelvia
