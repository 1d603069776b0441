// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/Module1.h"

#include <vector>

namespace zelvia
{

class Control;
class frmMain;

/// Has the journal look at the diary when a field has closed, a day was committed or a list has changed, and while
/// a note is written.
class PageJournal
{
public:
    explicit PageJournal(frmMain& page) : page_(&page) {}

    void Update();

private:
    frmMain* page_;
    // What there was at the last look.
    const Control* focused_ = nullptr;
    i16 slot_;
    RecordGiorno day_;
    decltype(Session::lists) lists_;
    Text note_;
};

} // namespace zelvia
