// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportReading.h"

#include "tools/strumenti/Failures.h"

#include <utility>

namespace zelvia
{

int ImportReading::Run(Terminal& terminal)
{
    constexpr std::size_t often = 10; // Files between two moments in which it can be ended.
    std::vector<std::string> files;
    if (const auto failure = FailureOf([&] { files = FilesToRead(); })) {
        terminal.err << *failure << ".\n";
        return kNotDone;
    }
    if (files.empty()) {
        terminal.err << "Qui non c'è nessun altro file FIT, TCX o GPX.\n";
        return kNotDone;
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (i % often == 0) {
            terminal.err << "Letti " << i << " file su " << files.size() << ".\n";
        }
        std::vector<Candidate> candidates = CandidatesOf(files[i], rules_);
        const std::lock_guard lock(mutex_);
        progress_ = {i + 1, files.size()};
        found_.insert(found_.end(), std::make_move_iterator(candidates.begin()),
                      std::make_move_iterator(candidates.end()));
    }
    return kDone;
}

std::vector<std::string> ImportReading::FilesToRead() const
{
    std::vector<std::string> files = ExpandFolders(names_);
    std::set<std::string> known = known_;
    std::erase_if(files, [&](const std::string& file) { return !known.insert(file).second; });
    return files;
}

std::vector<Candidate> ImportReading::TakeFound()
{
    const std::lock_guard lock(mutex_);
    return std::exchange(found_, {});
}

ImportReading::Progress ImportReading::HowFar()
{
    const std::lock_guard lock(mutex_);
    return progress_;
}

} // namespace zelvia
