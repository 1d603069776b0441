// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "diary/UnsavedWork.h"
#include "tools/start/BeforeStart.h"
#include "tools/strumenti/Actions.h"

#include <sstream>

namespace zelvia
{
namespace
{

/// Runs the tools on the journal. What they could not do is said.
void RunOnJournal(Start& start, std::vector<std::string> words)
{
    std::ostringstream out;
    std::ostringstream err;
    Terminal terminal{out, err, {}};
    words.insert(words.begin(), {"--cartella", start.folder.string(), "--si", "giornale"});
    if (RunTools(words, terminal) != kDone) {
        start.speaker.tell(Tools::Tr(
            "Non è stato fatto tutto; il resto si trova ancora con «zelvia-strumenti giornale».\n%1", err.str()));
    }
}

void TakePieces(Start& start, const std::vector<UnsavedWork::Piece>& pieces)
{
    for (const UnsavedWork::Piece& piece : pieces) {
        const std::string remark =
            piece.conflict ? "\n\n" + Tools::Tr("Nel diario intanto c'è altro, che verrebbe sostituito.") : "";
        if (start.speaker.ask(piece.text + remark, {Tools::Tr("Riprendi"), Tools::Tr("Lascia")}, {}) != 0U) {
            continue;
        }
        std::vector<std::string> words = {"riprendi", piece.word, "--diario", piece.diary};
        if (piece.conflict) {
            words.emplace_back("--sovrascrivi");
        }
        RunOnJournal(start, std::move(words));
    }
}

} // namespace

void OfferUnsaved(Start& start)
{
    const std::optional<UnsavedWork> unsaved = FindUnsaved(start.folder);
    if (!unsaved) {
        return;
    }
    const auto answer = start.speaker.ask(
        unsaved->sentence,
        {Tools::Tr("Riprendi tutto"), Tools::Tr("Giorno per giorno…"), Tools::Tr("Dimentica"), Tools::Tr("Più tardi")},
        Tools::Tr("Per riprenderlo: zelvia-strumenti --cartella «%1» giornale riprendi", start.folder));
    RememberOffered(start.folder);
    if (answer == 0U) {
        RunOnJournal(start, {"riprendi"});
    } else if (answer == 1U) {
        TakePieces(start, unsaved->pieces);
    } else if (answer == 2U) {
        RunOnJournal(start, {"dimentica"});
    }
}

} // namespace zelvia
