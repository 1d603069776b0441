// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportComparison.h"

#include "core/Tr.h"
#include "tools/strumenti/Failures.h"
#include "tools/strumenti/ImportRun.h"
#include "tools/strumenti/ImportTexts.h"

#include <QString>

#include <algorithm>

namespace zelvia
{
namespace
{

/// True when what was shown is what would be done.
bool IsAsShown(const Candidate& shown, const Candidate& now)
{
    return shown.status == now.status && shown.written == now.written && shown.held == now.held &&
           shown.result == now.result;
}

/// Does the work with a context of its own, and says what went wrong.
template <typename Work>
int Run(const Options& options, Terminal& terminal, Work&& work)
{
    int status = kDone;
    Context context(options, terminal);
    const auto failure = FailureOf([&] { status = work(context); });
    if (failure) {
        QString text = QString::fromStdString(*failure);
        text[0] = text.at(0).toUpper();
        terminal.err << text.toStdString() << ".\n";
    }
    return failure ? kNotDone : status;
}

} // namespace

int ImportComparison::Look(Terminal& terminal)
{
    return Run(options, terminal, [&](Context& context) {
        ImportRun run(context, candidates, all);
        changes = run.Changes();
        for (const Candidate& candidate : candidates) {
            const int year = candidate.date.Year().value();
            if (candidate.status != Candidate::Status::Bad && candidate.status != Candidate::Status::Rest &&
                !lists.contains(year)) {
                lists[year] = {{SelectionList::Percorso, run.Shelf().Entries(year, SelectionList::Percorso)},
                               {SelectionList::Tipo, run.Shelf().Entries(year, SelectionList::Tipo)}};
            }
        }
        return kDone;
    });
}

int ImportComparison::Write(Terminal& terminal)
{
    return Run(options, terminal, [&](Context& context) {
        const std::vector<Candidate> shown = candidates;
        ImportRun run(context, candidates, all);
        if (!std::equal(shown.begin(), shown.end(), candidates.begin(), candidates.end(), IsAsShown)) {
            throw FileFailure(
                Tools::Tr("il diario è cambiato nel frattempo: niente è stato scritto, guardare di nuovo"));
        }
        const int status = run.Write();
        terminal.err << "Fatto. " << ImportReport(candidates) << "\n";
        return status;
    });
}

} // namespace zelvia
