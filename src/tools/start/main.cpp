// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// zelvia-avvio: all that comes before the program's start, and the copy after its end: avvio [--oggi AAAA-MM-GG]
// FOLDER. For the launcher, which then becomes the program. avvio --di TEXT [PART...]: the text in the user's language.
#include "core/Date.h"
#include "core/Tr.h"
#include "diary/CommandLine.h"
#include "tools/copies/CopiesCommand.h"
#include "tools/start/BeforeStart.h"
#include "tools/start/CopyAtTheEnd.h"
#include "translation/Translation.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace
{

using namespace zelvia;

/// What the launcher and folder-check.sh say.
[[maybe_unused]] constexpr const char* kLauncherTexts[] = {
    Tools::Mark("La cartella personale non è nota (HOME): indicare una CARTELLA."),
    Tools::Mark("Zelvia ha bisogno di uno schermo."),
    Tools::Mark("Zelvia non può stare in «%1»: %2"),
    Tools::Mark("è la radice del disco. Indicare una cartella, per esempio /home/anna/Zelvia."),
    Tools::Mark(
        "nel percorso c'è un punto («.»), e nei nomi delle cartelle del programma i punti non sono ammessi: il nome "
        "del diario finisce al primo punto. Indicare una cartella senza punti."),
    Tools::Mark("nel percorso c'è la parola «ZelviaFile», riservata alla cartella dei diari."),
    Tools::Mark("nel percorso c'è una barra rovesciata («\\»)."),
    Tools::Mark("nel percorso ci sono delle virgolette («\"»)."),
    Tools::Mark("nel percorso c'è un carattere di controllo."),
    Tools::Mark("nel percorso c'è un carattere che i file del diario non possono contenere (fuori da Windows-1252)."),
    Tools::Mark("i collegamenti del percorso girano in tondo."),
    Tools::Mark("«%1» non è una cartella."),
    Tools::Mark("nella cartella non si può scrivere."),
    Tools::Mark("la cartella non si può creare: in «%1» non si può scrivere."),
    Tools::Mark("la cartella non si può creare."),
    Tools::Mark("il nome della cartella è vuoto.")};

void Say(const std::vector<std::string>& words)
{
    std::cout << Tools::Fill(Tools::Tr(words.front().c_str()), {words.begin() + 1, words.end()}) << "\n";
}

void Run(const CommandLine& line)
{
    // Later it may have ended, and another process be the parent.
    const pid_t program = ::getppid();
    if (line.today) {
        SetClock([today = *line.today] { return today; });
    }
    Start start{ResolvedFolder(line.folder.value()), SpeakerOnDisplay(), StartMemory(StartMemoryFile())};
    if (PrepareStart(start)) {
        CopyAtTheEndOf(program, start);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    // A file that may grow no further is an error like any other, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    TranslateTools();
    try {
        if (argc > 2 && std::string_view(argv[1]) == "--di") {
            Say({argv + 2, argv + argc});
            return 0;
        }
        Run(ReadCommandLine(std::span(argv + 1, argv + argc)));
        return 0;
    } catch (const WrongUsage& wrong) {
        std::cerr << wrong.reason << "\n";
    } catch (const std::exception& error) {
        std::cerr << "zelvia-avvio: " << error.what() << "\n";
    }
    return 2;
}
