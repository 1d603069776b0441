// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zelvia
{

/// What the program is asked for when it is started.
struct CommandLine {
    bool help = false;
    bool information = false;          ///< What a bug report should contain.
    std::optional<CalendarDate> today; ///< The day to take for today.
    std::optional<std::string> diary;  ///< The diary to open, as its file in the diaries' folder is called.
    std::optional<std::string> folder; ///< The program's folder, as it was given.
};

/// A command line that can't be followed, with the reason in Italian.
struct WrongUsage {
    std::string reason;
};

/// Reads the arguments after the program's name. Raises WrongUsage.
CommandLine ReadCommandLine(std::span<const char* const> words);

inline constexpr std::string_view kUsage = R"(Uso: zelvia [--oggi AAAA-MM-GG] [--diario NOME] [CARTELLA]
     zelvia --informazioni [CARTELLA]

Apre il diario di chi corre che sta nella CARTELLA. Se non è indicata, in quella
del programma quando contiene un diario, altrimenti in Zelvia, nella cartella
personale. La prima volta la prepara.

  --oggi AAAA-MM-GG  prende questo giorno per oggi
  --diario NOME      apre questo diario, invece di quello di sempre
  --informazioni     mostra che cosa scrivere in una segnalazione: versioni e
                     cartelle, niente di personale
  --help             mostra questo testo
)";

} // namespace zelvia
