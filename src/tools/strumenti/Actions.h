// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Arguments.h"
#include "tools/strumenti/Context.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// What the tools can do.
struct Action {
    std::string_view name;
    const char* usage;   ///< What follows its name.
    const char* summary; ///< In the help, a line or more, each of 50 characters at most.
    /// Returns the exit status. Raises Misuse, FileFailure or std::filesystem::filesystem_error.
    int (*run)(Context& context, Arguments& arguments);
};

std::span<const Action> Actions();

int RunCheck(Context& context, Arguments& arguments);
int RunMend(Context& context, Arguments& arguments);
int RunNewYear(Context& context, Arguments& arguments);
int RunYears(Context& context, Arguments& arguments);
int RunJournal(Context& context, Arguments& arguments);
int RunImport(Context& context, Arguments& arguments);
int RunExport(Context& context, Arguments& arguments);
int RunBook(Context& context, Arguments& arguments);
int RunMerge(Context& context, Arguments& arguments);
/// What `copie` does in the folder itself: days of a copy, or a whole diary, put back.
int RunPutBack(Context& context, Arguments& arguments);
int RunCopiesAction(Context& context, Arguments& arguments);

/// Does what the arguments say and returns the exit status; failures are reported.
int RunTools(const std::vector<std::string>& words, Terminal& terminal);

} // namespace zelvia
