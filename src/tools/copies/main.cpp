// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// zelvia-copie: keeps copies of a diary, lists and compares them and puts them back.
#include "tools/copies/CopiesCommand.h"
#include "tools/copies/SafeFiles.h"

#include <csignal>
#include <iostream>
#include <string>
#include <string_view>

namespace
{

namespace fs = std::filesystem;
using namespace zelvia;

constexpr int kGood = 0;
constexpr int kFailed = 1;
constexpr int kMisused = 2;

const std::string usage = "Uso: zelvia-copie [--cartella CARTELLA] COMANDO\n\n"
                          "Le copie dei diari di Zelvia, una prima di ogni avvio e una alla fine se qualcosa\n"
                          "è cambiato.\n\n" +
                          std::string(kCopiesCommands) +
                          "\n  --cartella CARTELLA     la cartella del programma: di solito Zelvia, nella\n"
                          "                          cartella personale; per «confronta» quella della copia\n"
                          "  --help                  mostra questo testo\n";

CopiesRequest Parse(int argc, char** argv)
{
    CopiesRequest request;
    request.command = "zelvia-copie";
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--da" && i + 1 < argc) {
            request.words.insert(request.words.end(), {word, argv[++i]});
        } else if (word == "--cartella") {
            if (++i == argc || *argv[i] == '\0') {
                throw Misuse{"Dopo --cartella manca la CARTELLA."};
            }
            request.folder = ResolvedFolder(argv[i]);
        } else if (word.starts_with("--") && word != "--help" && word != "--da" && word != "--nessuno") {
            throw Misuse{"Opzione sconosciuta: " + word};
        } else {
            request.words.push_back(word);
        }
    }
    return request;
}

int Run(const CopiesRequest& request)
{
    if (!request.words.empty() && request.words[0] == "--help") {
        std::cout << usage;
        return kGood;
    }
    return RunCopies(request, std::cout);
}

} // namespace

int main(int argc, char** argv)
{
    // A file that may grow no further is an error like any other, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(Parse(argc, argv));
    } catch (const Misuse& misuse) {
        std::cerr << misuse.text << "\n" << usage;
        return kMisused;
    } catch (const fs::filesystem_error& error) {
        std::cerr << "zelvia-copie: " << FileFailure(error.path1(), error.code().value()).what() << "\n";
    } catch (const std::exception& error) {
        std::cerr << "zelvia-copie: " << error.what() << "\n";
    }
    return kFailed;
}
