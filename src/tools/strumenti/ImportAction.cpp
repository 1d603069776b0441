// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/ImportRun.h"
#include "tools/strumenti/ImportTexts.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace zelvia
{
namespace
{

constexpr int kHour = 3600;

/// What the runner said about the times: +2, -3:30.
int OffsetIn(const std::string& word)
{
    const Misuse wrong{Tools::Tr("«%1» non è una differenza da UTC come +2 o -3:30.", word)};
    const bool behind = word.starts_with('-');
    const std::string digits = word.substr(behind || word.starts_with('+') ? 1 : 0);
    const std::size_t colon = std::min(digits.find(':'), digits.size());
    int parts[] = {0, 0};
    const std::string_view texts[] = {std::string_view(digits).substr(0, colon),
                                      colon == digits.size() ? "0" : std::string_view(digits).substr(colon + 1)};
    for (std::size_t i = 0; i < 2; ++i) {
        const char* const end = texts[i].data() + texts[i].size();
        constexpr int most[] = {15, 59};
        if (texts[i].empty() || std::from_chars(texts[i].data(), end, parts[i]).ptr != end || parts[i] < 0 ||
            parts[i] > most[i]) {
            throw wrong;
        }
    }
    const int offset = parts[0] * kHour + parts[1] * (kHour / 60);
    return behind ? -offset : offset;
}

ImportRules RulesIn(Arguments& arguments)
{
    ImportRules rules;
    rules.proposal.clock = arguments.TakeFlag("--in-moto") ? RunClock::Moving : RunClock::Elapsed;
    if (const auto offset = arguments.TakeValue("--fuso")) {
        rules.proposal.offset = OffsetIn(*offset);
    }
    while (const auto pair = arguments.TakeValue("--colonna")) {
        const std::size_t equals = std::min(pair->rfind('='), pair->size());
        const auto column = equals < pair->size() ? ColumnOf(pair->substr(equals + 1)) : std::nullopt;
        if (!column) {
            throw Misuse{Tools::Tr("«%1» non dice TESTATA=NOME, con il NOME di una colonna come «km».", *pair)};
        }
        rules.columns[pair->substr(0, equals)] = *column;
    }
    return rules;
}

std::vector<Candidate> ReadAll(Context& context, const std::vector<std::string>& files, const ImportRules& rules)
{
    constexpr std::size_t often = 100;
    std::vector<Candidate> candidates;
    for (std::size_t i = 0; i < files.size(); ++i) {
        for (Candidate& candidate : CandidatesOf(files[i], rules)) {
            candidates.push_back(std::move(candidate));
        }
        if ((i + 1) % often == 0) {
            context.Err() << Tools::Tr("Letti %1 file su %2.", i + 1, files.size()) << "\n";
        }
    }
    return candidates;
}

int Import(Context& context, std::vector<Candidate>& candidates, bool all)
{
    ImportRun run(context, candidates, all);
    context.Print(context.Chosen().tsv ? ImportForPrograms(candidates) : ImportForTheRunner(candidates));
    TellRemarks(context, candidates);
    TellClocks(context, candidates);
    const bool bad = std::any_of(candidates.begin(), candidates.end(),
                                 [](const Candidate& one) { return one.status == Candidate::Status::Bad; });
    const int status = bad || run.LeftAlone() > 0 ? kNotDone : kDone;
    if (!TellChanges(context, run.Changes(), run.LeftAlone())) {
        return context.Chosen().rehearsal ? kDone : status;
    }
    if (const auto answered = context.AskFirst(Tools::Tr("Scrivere nel diario?"))) {
        return *answered;
    }
    const int applied = run.Write();
    context.Told() << Tools::Tr("Fatto. %1", ImportReport(candidates)) << "\n";
    return std::max(applied, status);
}

} // namespace

int RunImport(Context& context, Arguments& arguments)
{
    const bool all = arguments.TakeFlag("--tutti");
    const ImportRules rules = RulesIn(arguments);
    const std::vector<std::string> names = arguments.TakeWords(1, std::numeric_limits<std::size_t>::max());
    context.Folder();
    std::vector<Candidate> candidates = ReadAll(context, ExpandFolders(names), rules);
    if (candidates.empty()) {
        throw FileFailure(Tools::Tr("nelle cartelle indicate non ci sono file FIT, TCX o GPX"));
    }
    return Import(context, candidates, all);
}

} // namespace zelvia
