// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageJournal.h"

#include "core/RunTimeError.h"
#include "diary/Journal.h"
#include "toolkit/FocusController.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

/// The line of notes in which `focused` writes, 0 for none.
int OpenNote(const frmMain& page, const Control* focused)
{
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        if (focused != nullptr && focused == page.notes[line].txt) {
            return line;
        }
    }
    return 0;
}

} // namespace

void PageJournal::Update()
{
    Journal& journal = Journal::Instance();
    if (!journal.Noting()) {
        return;
    }
    const Control* const focused = FocusController::Instance().Current();
    const RecordGiorno& day = Giorni[GiornoCorrente];
    // Of a note, which may be long in writing, every letter is noted, and not only the whole line.
    const int open = OpenNote(*page_, focused);
    const Text note = open > 0 ? page_->notes[open].txt->Content() : Text();
    // The windows that close with the page may have changed anything.
    if (!page_->Unloaded() && focused == focused_ && GiornoCorrente == slot_ && day == day_ &&
        session.lists == lists_ && note == note_) {
        return;
    }
    focused_ = focused;
    slot_ = GiornoCorrente;
    day_ = day;
    lists_ = session.lists;
    note_ = note;
    RecordGiorno shown = day;
    try {
        shown.NumGiorno = GiornoCorrente;
        shown.Data = DataCorrente;
        DayOnPage(*page_).Commit(shown);
        if (open > 0) {
            shown.Note[open] = note;
        }
    } catch (const ErroreRunTime&) {
        // A day that can't be committed is reported by the command that commits it.
        shown = day;
    }
    journal.Look(shown);
}

} // namespace zelvia
