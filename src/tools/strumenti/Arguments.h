// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/copies/CopiesCommand.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

inline constexpr int kDone = 0;
inline constexpr int kNotDone = 1; ///< Or something was found.
inline constexpr int kMisused = 2;

/// The options that every action understands.
struct Options {
    std::filesystem::path folder; ///< As given, made absolute; empty for the one in the home folder.
    std::optional<std::string> diary;
    std::string page; ///< Of the window, as its action is called; empty for none.
    bool help = false;
    bool tsv = false;
    bool rehearsal = false; ///< --prova
    bool yes = false;       ///< --si
    bool overwrite = false; ///< --sovrascrivi
};

/// The arguments after the name of an action. Each Take removes what it finds; all raise Misuse.
class Arguments
{
public:
    Arguments(std::string action, std::vector<std::string> words) : action_(std::move(action)), words_(std::move(words))
    {
    }

    const std::string& Action() const { return action_; }
    /// As they were given.
    const std::vector<std::string>& Words() const { return words_; }

    /// True when the option is there.
    bool TakeFlag(std::string_view option);
    /// The value of the option, none without it.
    std::optional<std::string> TakeValue(std::string_view option);
    /// What is left, of which each has to be a word and not an option.
    std::vector<std::string> TakeWords(std::size_t atLeast, std::size_t atMost);

private:
    std::string action_;
    std::vector<std::string> words_;
};

struct CommandWords {
    Options options;
    std::string action; ///< Empty when there is none.
    std::vector<std::string> words;
};

/// Sorts the arguments of the program. The options of all actions may be anywhere.
CommandWords SortWords(const std::vector<std::string>& words);

} // namespace zelvia
