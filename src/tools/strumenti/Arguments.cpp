// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/Arguments.h"

#include "core/Tr.h"

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

bool IsOption(const std::string& word)
{
    return word.size() > 1 && word.starts_with('-');
}

/// True for a path that stays in the folder that it starts from.
bool IsInside(const std::filesystem::path& path)
{
    return path.is_relative() && path.has_filename() && std::find(path.begin(), path.end(), "..") == path.end();
}

/// The flag of the options that the word sets, null for any other word.
bool* FlagOf(Options& options, std::string_view word)
{
    const std::pair<std::string_view, bool*> flags[] = {{"--help", &options.help},
                                                        {"--tsv", &options.tsv},
                                                        {"--prova", &options.rehearsal},
                                                        {"--si", &options.yes},
                                                        {"--sovrascrivi", &options.overwrite}};
    for (const auto& [name, flag] : flags) {
        if (name == word) {
            return flag;
        }
    }
    return nullptr;
}

/// The argument of the option at `place`; `what` names what it has to be.
std::string TakeBehind(std::vector<std::string>& words, std::vector<std::string>::iterator place, std::string_view what)
{
    const auto value = std::next(place);
    if (value == words.end() || value->empty()) {
        throw Misuse{Tools::Tr("Dopo %1 manca %2.", *place, std::string(what))};
    }
    std::string taken = *value;
    words.erase(place, std::next(value));
    return taken;
}

std::optional<std::string> TakeOption(std::vector<std::string>& words, std::string_view option, std::string_view what)
{
    const auto place = std::find(words.begin(), words.end(), option);
    return place == words.end() ? std::nullopt : std::optional(TakeBehind(words, place, what));
}

} // namespace

bool Arguments::TakeFlag(std::string_view option)
{
    return std::erase(words_, option) > 0;
}

std::optional<std::string> Arguments::TakeValue(std::string_view option)
{
    return TakeOption(words_, option, Tools::Tr("un valore"));
}

std::vector<std::string> Arguments::TakeWords(std::size_t atLeast, std::size_t atMost)
{
    const auto option = std::find_if(words_.begin(), words_.end(), IsOption);
    if (option != words_.end()) {
        throw Misuse{Tools::Tr("Opzione sconosciuta: %1", *option)};
    }
    if (words_.size() < atLeast) {
        throw Misuse{Tools::Tr("Per «%1» manca qualcosa.", action_)};
    }
    if (words_.size() > atMost) {
        throw Misuse{Tools::Tr("Per «%1» «%2» è di troppo.", action_, words_[atMost])};
    }
    return std::exchange(words_, {});
}

CommandWords SortWords(const std::vector<std::string>& words)
{
    CommandWords sorted;
    std::vector<std::string> rest = words;
    if (const auto folder = TakeOption(rest, "--cartella", Tools::Tr("la CARTELLA"))) {
        sorted.options.folder = std::filesystem::absolute(*folder);
    }
    sorted.options.diary = TakeOption(rest, "--diario", Tools::Tr("il NOME"));
    if (sorted.options.diary && !IsInside(*sorted.options.diary)) {
        throw Misuse{Tools::Tr("«%1» non è il nome di un diario.", *sorted.options.diary)};
    }
    sorted.options.page = TakeOption(rest, "--pagina", Tools::Tr("l'AZIONE")).value_or("");
    std::erase_if(rest, [&](const std::string& word) {
        bool* const flag = FlagOf(sorted.options, word);
        return flag != nullptr && (*flag = true);
    });
    if (!rest.empty()) {
        if (IsOption(rest.front())) {
            throw Misuse{Tools::Tr("Opzione sconosciuta: %1", rest.front())};
        }
        sorted.action = rest.front();
        rest.erase(rest.begin());
    }
    sorted.words = std::move(rest);
    return sorted;
}

} // namespace zelvia
