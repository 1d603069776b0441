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

void PageJournal::Update()
{
    Journal& journal = Journal::Instance();
    if (!journal.Noting()) {
        return;
    }
    const Control* const focused = FocusController::Instance().Current();
    const RecordGiorno& day = Giorni[GiornoCorrente];
    // The windows that close with the page may have changed anything.
    if (!page_->Unloaded() && focused == focused_ && GiornoCorrente == slot_ && day == day_ &&
        session.lists == lists_) {
        return;
    }
    focused_ = focused;
    slot_ = GiornoCorrente;
    day_ = day;
    lists_ = session.lists;
    RecordGiorno shown = day;
    try {
        shown.NumGiorno = GiornoCorrente;
        shown.Data = DataCorrente;
        DayOnPage(*page_).Commit(shown);
    } catch (const ErroreRunTime&) {
        // A day that can't be committed is reported by the command that commits it.
        shown = day;
    }
    journal.Look(shown);
}

} // namespace zelvia
