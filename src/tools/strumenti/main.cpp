// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// zelvia-strumenti: what is done with the diaries while the program is closed.
#include "core/Tr.h"
#include "tools/strumenti/Actions.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;
using namespace zelvia;

/// True for a line that names no action and asks for nothing that only an action gives.
bool AsksForTheWindow(const std::vector<std::string>& words)
{
    try {
        const CommandWords sorted = SortWords(words);
        const Options& options = sorted.options;
        return sorted.action.empty() && !options.help && !options.tsv && !options.rehearsal && !options.yes &&
               !options.overwrite;
    } catch (const Misuse&) {
        return false; // What is wrong with it is said by the one that runs it.
    }
}

bool HasDisplay()
{
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            return true;
        }
    }
    return false;
}

/// The program with the window: beside this one as built, in libexec as installed.
fs::path WindowProgram()
{
    constexpr const char* name = "zelvia-finestra";
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    return fs::exists(own / name) ? own / name : own.parent_path() / "libexec/zelvia" / name;
}

/// Becomes the program with the window, so that this one needs none of its libraries. Returns when it can't.
int OpenWindow(char** argv)
{
    if (!HasDisplay()) {
        std::cerr << Tools::Tr("La finestra degli strumenti ha bisogno di uno schermo. Senza, indicare un'AZIONE: "
                               "«zelvia-strumenti --help» le mostra.")
                  << "\n";
        return kMisused;
    }
    const std::string program = WindowProgram();
    argv[0] = const_cast<char*>(program.c_str());
    execv(program.c_str(), argv);
    std::cerr << Tools::Tr("La finestra degli strumenti non si apre («%1»: %2).", program, std::strerror(errno))
              << "\n";
    return kNotDone;
}

} // namespace

int main(int argc, char** argv)
{
    // A file that may grow no further is an error like any other, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (AsksForTheWindow(words)) {
        return OpenWindow(argv);
    }
    Terminal terminal{std::cout, std::cerr, {}};
    if (isatty(STDIN_FILENO) != 0) {
        terminal.readLine = [] {
            std::string line;
            return std::getline(std::cin, line) ? std::optional(line) : std::nullopt;
        };
    }
    if (isatty(STDERR_FILENO) != 0) {
        terminal.progress = [](int page, int pages) {
            std::cerr << "\r" << Tools::Tr("pagina %1 di %2", page, pages) << (page == pages ? "\n" : "") << std::flush;
        };
    }
    return RunTools(words, terminal);
}
