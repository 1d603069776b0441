// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/ImportForm.h"
#include "tools/strumenti/Context.h"
#include "tools/strumenti/DiaryShelf.h"
#include "tools/strumenti/ImportSources.h"

#include <map>
#include <vector>

namespace zelvia
{

/// What is looked at beside the days and written into them, away from the window.
struct ImportComparison {
    int number = 0;
    Options options;
    bool all = false;
    std::vector<Candidate> candidates;
    DiaryShelf::Summary changes;
    std::map<int, ImportForm::Lists> lists; ///< By year.

    /// Says what each of them would change. Both return the exit status.
    int Look(Terminal& terminal);
    /// Writes what was shown, or nothing when that has changed since.
    int Write(Terminal& terminal);
};

} // namespace zelvia
