// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "diary/JournalLines.h"
#include "tools/merge/Conflicts.h"
#include "tools/start/BeforeStart.h"

namespace zelvia
{
namespace
{

constexpr const char* kConflictsNote = "conflitti";

} // namespace

void TellConflicts(Start& start)
{
    std::vector<std::string> files;
    std::string all;
    for (const Conflict& conflict : FindConflicts(start.folder)) {
        files.push_back(conflict.file);
        all += conflict.file + '\n';
    }
    const std::string digest = files.empty() ? "" : std::to_string(ChecksumOf(all));
    const bool said = start.memory.Of(kConflictsNote, start.folder) == digest;
    start.memory.Note(kConflictsNote, start.folder, digest);
    if (said || files.empty()) {
        return;
    }
    const auto answer = start.speaker.ask(
        Tools::Tr("Due computer hanno scritto negli stessi file, e il servizio che tiene uguali le cartelle ne ha "
                  "lasciato qui le seconde versioni:\n\n%1\n«Due computer», negli strumenti, le unisce ai file del "
                  "diario giorno per giorno. Fino ad allora il diario si apre senza ciò che vi è scritto.",
                  PointsOf(files)),
        {Tools::Tr("Strumenti…"), Tools::Tr("Apri lo stesso")},
        Tools::Tr("Per unirle: zelvia-strumenti --cartella «%1» unisci", start.folder));
    if (answer == 0U) {
        start.speaker.openTools(start.folder);
    }
}

} // namespace zelvia
