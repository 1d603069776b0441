// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/copies/CopyStore.h"
#include "tools/copies/SafeFiles.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// A command line that can't be followed, with what to say about it.
struct Misuse {
    std::string text;
};

/// The path as the program in that folder knows it: absolute, without links, without a slash at its end.
std::filesystem::path ResolvedFolder(const std::filesystem::path& path);

/// "Zelvia" in the home folder; empty when that is not known.
std::filesystem::path HomesFolder();

/// A command about the copies, as zelvia-copie and the tools understand it.
struct CopiesRequest {
    std::string command;          ///< How it is called, for what it says.
    std::filesystem::path folder; ///< Resolved; empty when none is given.
    std::vector<std::string> words;
    bool tsv = false;
    bool rehearsal = false;       ///< Says what it would do.
    std::filesystem::path from{}; ///< The place of the copies, as --da names it; empty for the first one.
};

inline constexpr std::string_view kCopiesCommands =
    R"(  elenco                  mostra le copie, l'ultima in fondo
  confronta NUMERO        mostra, giorno per giorno, che cosa è cambiato dopo
                          quella copia
  rimetti NUMERO NUOVA    mette quella copia nella cartella NUOVA, che non deve
                          esserci ancora o dev'essere vuota
  crea                    fa subito una copia, se qualcosa è cambiato
  secondo-posto [CARTELLA | --nessuno]
                          tiene le copie anche nella CARTELLA, per esempio di
                          una chiavetta; senza niente dice dove
  --da CARTELLA           con elenco, confronta, rimetti: le copie che sono in
                          quel posto
)";

/// The copies of the current user. Raises FileFailure when there can be none.
CopyStore UsersCopies();

/// The copy whose number the word is. Raises Misuse for any other word, FileFailure when there is no such copy;
/// `command` is how to list the existing ones.
Copy NumberedCopy(const CopyStore& store, const std::string& word, const std::string& command);

/// The first place has its copy, but the second one could not get it.
class SecondPlaceFailure : public FileFailure
{
public:
    using FileFailure::FileFailure;
};

/// Does it and returns the exit status. Raises Misuse, FileFailure or std::filesystem::filesystem_error.
int RunCopies(const CopiesRequest& request, std::ostream& out);

} // namespace zelvia
