// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"
#include "tools/strumenti/ImportSources.h"

#include <cstddef>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace zelvia
{

/// Files that are read beside the window. What has been found can be fetched at any time, from any thread.
class ImportReading
{
public:
    struct Progress {
        std::size_t done = 0;
        std::size_t files = 0; ///< 0 while folders are searched.
    };

    /// `known`: files that are not to be read again.
    ImportReading(std::vector<std::string> names, std::set<std::string> known, ImportRules rules)
        : names_(std::move(names)), known_(std::move(known)), rules_(std::move(rules))
    {
    }

    /// Reads them all and says how far it is, which may end it. Returns an exit status.
    int Run(Terminal& terminal);

    /// What has been found since the last time.
    std::vector<Candidate> TakeFound();
    Progress HowFar();

private:
    std::vector<std::string> FilesToRead() const;

    std::vector<std::string> names_;
    std::set<std::string> known_;
    ImportRules rules_;
    std::mutex mutex_; ///< Of what follows.
    std::vector<Candidate> found_;
    Progress progress_;
};

} // namespace zelvia
