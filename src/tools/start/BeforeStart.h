// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/start/Speaker.h"
#include "tools/start/StartMemory.h"

#include <filesystem>

namespace zelvia
{

/// What the steps before the start work with.
struct Start {
    std::filesystem::path folder; ///< The program's, absolute and without links.
    Speaker speaker;
    StartMemory memory;
};

/// Runs all steps before the program's start. False when the program runs in that folder already, and nothing was
/// done. No failure stops the start, and nothing is raised.
bool PrepareStart(Start& start);

/// Keeps a copy of the diaries, and reports when that fails.
void KeepCopy(Start& start);

/// Reports what is wrong with the diary that is about to be opened, and repairs it if the user agrees. What can only
/// be decided by hand is reported once.
void CheckPresentDiary(Start& start);

/// Reports once which second versions of files a program that synchronises folders has put beside them.
void TellConflicts(Start& start);

/// Reports what was entered and not saved, and restores or forgets it as the user chooses.
void OfferUnsaved(Start& start);

/// In January offers the diary of the new year, once, when the newest one of the folder is of an earlier year.
void OfferNewYear(Start& start);

} // namespace zelvia
