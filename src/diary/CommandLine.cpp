// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CommandLine.h"

#include "core/RunTimeError.h"

namespace zelvia
{
namespace
{

/// The day that a text like 2028-02-29 names; none when there is no such day.
std::optional<CalendarDate> DayOf(std::string_view text)
{
    return TrapValueWith(
        std::optional<CalendarDate>(), [&] { return IsoDate(text); }, [](const ErroreRunTime&) {});
}

} // namespace

CommandLine ReadCommandLine(std::span<const char* const> words)
{
    CommandLine line;
    bool options = true;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        if (options && word == "--") {
            options = false;
        } else if (options && word == "--help") {
            line.help = true;
        } else if (options && word == "--informazioni") {
            line.information = true;
        } else if (options && word == "--oggi") {
            const std::string day = ++i < words.size() ? words[i] : "";
            line.today = DayOf(day);
            if (!line.today) {
                throw WrongUsage{"Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «" + day + "» non lo è."};
            }
        } else if (options && word == "--diario") {
            line.diary = ++i < words.size() ? words[i] : "";
            if (line.diary->empty()) {
                throw WrongUsage{"Dopo --diario ci vuole il NOME di un diario."};
            }
        } else if (options && word.starts_with('-')) {
            throw WrongUsage{"Opzione sconosciuta: " + word};
        } else if (line.folder) {
            throw WrongUsage{"Si può indicare una sola CARTELLA."};
        } else if (word.empty()) {
            throw WrongUsage{"Zelvia non può stare in «»: il nome della cartella è vuoto."};
        } else {
            line.folder = word;
        }
    }
    return line;
}

} // namespace zelvia
