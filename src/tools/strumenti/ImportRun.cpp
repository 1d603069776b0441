// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ImportRun.h"

#include "core/StateFolder.h"
#include "core/Tr.h"

#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kImportLabel = "importa";

/// The file of what was imported; empty when the home is not known.
fs::path HistoryFile()
{
    return StateFile("importati");
}

/// What was imported into this folder, with the routes that the runner has given on the page since.
std::vector<ImportedActivity> Earlier(ImportHistory& history, const std::string& folder, DiaryShelf& shelf)
{
    std::vector<ImportedActivity> imported = history.Of(folder);
    for (ImportedActivity& earlier : imported) {
        const RecordGiorno* const day = shelf.Find(earlier.date);
        if (day != nullptr && day->Percorso != earlier.route) {
            earlier.route = day->Percorso;
            history.Put(earlier);
        }
    }
    return imported;
}

/// When the activities begin that were read whole. What is left of one of them in a damaged file comes after it.
std::set<std::int64_t> StartsOfWhole(const std::vector<Candidate>& candidates)
{
    std::set<std::int64_t> starts;
    for (const Candidate& candidate : candidates) {
        if (candidate.activity && !candidate.damaged) {
            starts.insert(candidate.activity->start);
        }
    }
    return starts;
}

} // namespace

ImportRun::ImportRun(Context& context, std::vector<Candidate>& candidates, bool all)
    : context_(context), candidates_(candidates), shelf_(context), history_(HistoryFile()),
      judge_(shelf_, Earlier(history_, context.Folder().string(), shelf_), all, context.Chosen().overwrite)
{
    const std::set<std::int64_t> whole = StartsOfWhole(candidates);
    for (const bool late : {false, true}) {
        for (Candidate& candidate : candidates) {
            if (late == (candidate.damaged && whole.contains(candidate.activity->start))) {
                judge_.Look(candidate);
            }
        }
    }
}

int ImportRun::Write()
{
    FileSet files(context_.Folder(), kImportLabel);
    shelf_.Prepare(files);
    const int applied = context_.Apply(files);
    Remember();
    return applied;
}

/// The days are in the diary even if this fails.
void ImportRun::Remember()
{
    for (const Candidate& candidate : candidates_) {
        if (candidate.activity && candidate.written) {
            ImportedActivity imported = ImportedOf(candidate);
            imported.folder = context_.Folder().string();
            history_.Put(std::move(imported));
        }
    }
    try {
        history_.Save();
    } catch (const std::exception& error) {
        context_.Err() << Tools::Tr("Non si è potuto annotare che cosa è stato importato: %1.", error.what()) << "\n";
    }
}

} // namespace zelvia
