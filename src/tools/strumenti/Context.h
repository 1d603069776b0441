// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Descriptor.h"
#include "tools/strumenti/Arguments.h"
#include "tools/strumenti/FileSet.h"
#include "tools/strumenti/Table.h"
#include "tools/years/DiaryNames.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace zelvia
{

/// What the tools talk with.
struct Terminal {
    std::ostream& out;
    std::ostream& err;
    /// A line that the user types, none at the end of the input; null when nobody sits there.
    std::function<std::optional<std::string>()> readLine;
    /// Called with each page of a book that is written, and their number; null when nobody watches.
    std::function<void(int page, int pages)> progress = {};
};

/// What an action works with. Unless it is said otherwise everything raises FileFailure or
/// std::filesystem::filesystem_error with what happened.
class Context
{
public:
    Context(Options options, Terminal& terminal) : options_(std::move(options)), terminal_(terminal) {}

    const Options& Chosen() const { return options_; }
    /// For what programs read as well; nothing else goes there with --tsv.
    std::ostream& Out() { return terminal_.out; }
    std::ostream& Err() { return terminal_.err; }
    /// For what only the user reads.
    std::ostream& Told() { return options_.tsv ? terminal_.err : terminal_.out; }
    void Print(const Table& table);
    /// Null when nobody watches.
    const std::function<void(int page, int pages)>& Progress() const { return terminal_.progress; }

    /// The program's folder, absolute and without links. The first call takes the program's lock in it, which is held
    /// to the end but for the time that an answer takes, and completes a change that was left undone.
    const std::filesystem::path& Folder();
    /// The change that was completed, as its label says; empty for none.
    const std::string& Completed() const { return completed_; }

    /// The diaries of the folder by their names, such as "prova" or "vecchi/2020", in order.
    std::vector<std::string> Diaries();
    /// True when the chosen diary is a link, which nothing here follows; it is said then.
    bool TellLink();
    /// The one that --diario names, else the one that the program opens at its start; it need not be there.
    std::string ChosenDiary();
    /// The same; one that --diario names has to have a file or a folder.
    std::string PresentDiary();
    /// Reads a diary into Module1's days, with the paths of the session set.
    void Load(const std::string& diary);

    /// Asks whether to do what was shown. None to go ahead, else the exit status to end with.
    std::optional<int> AskFirst(const std::string& question);
    /// True when there is a user who can be asked.
    bool Asks() const { return !options_.rehearsal && !options_.yes && terminal_.readLine; }
    /// True when there is a user who is asked and agrees. In between the program may open the diary: raises FileFailure
    /// when that has it open still, or when any of its files has changed.
    bool Agrees(const std::string& question);
    /// Keeps a copy of the diaries; only the first call does.
    void KeepCopy();
    /// Changes the files, after a copy was kept. Returns kDone, or kNotDone when some were left alone, which is said.
    int Apply(FileSet& files);
    /// True once something may have been changed.
    bool HasChanged() const { return changed_; }

private:
    void FindFolder();
    void Lock();
    std::string ChosenOrNone();
    std::string WaitUnlocked();
    void Tell(const FileSet::Completion& completion);

    Options options_;
    Terminal& terminal_;
    std::filesystem::path folder_;
    std::unique_ptr<Descriptor> lock_;
    std::string completed_;
    bool copied_ = false;
    bool changed_ = false;
};

/// The folder of its lists, from the program folder on.
std::filesystem::path DiaryFolder(const std::string& diary);

/// As Context::Load, for one that has the lock of the program folder already.
void LoadDiary(const std::filesystem::path& folder, const std::string& diary);

} // namespace zelvia
