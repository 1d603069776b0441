// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"
#include "tools/strumenti/DiaryShelf.h"
#include "tools/strumenti/ImportJudge.h"
#include "tools/strumenti/ImportSources.h"

#include <vector>

namespace zelvia
{

/// One import into the diaries of a folder. Everything raises FileFailure or std::filesystem::filesystem_error.
class ImportRun
{
public:
    /// Looks at the candidates beside their days. `all`: activities that are no runs too.
    ImportRun(Context& context, std::vector<Candidate>& candidates, bool all);

    DiaryShelf& Shelf() { return shelf_; }
    DiaryShelf::Summary Changes() const { return shelf_.Changes(); }
    /// How many days hold something else and stay as they are.
    int LeftAlone() const { return judge_.LeftAlone(); }

    /// Writes the days, after a copy, and remembers what came in. Returns kDone, or kNotDone when files were left
    /// alone.
    int Write();

private:
    void Remember();

    Context& context_;
    std::vector<Candidate>& candidates_;
    DiaryShelf shelf_;
    ImportHistory history_;
    ImportJudge judge_;
};

} // namespace zelvia
