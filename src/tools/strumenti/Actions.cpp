// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/Actions.h"

#include "core/Tr.h"
#include "tools/copies/CopiesCommand.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Failures.h"

#include <algorithm>
#include <array>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr std::string_view kProgram = "zelvia-strumenti";

constexpr std::array kActions = {
    Action{"anno", Tools::Mark("AAAA [--gare]"),
           Tools::Mark("prepara il diario vuoto dell'anno AAAA, con le\nliste, i percorsi e le tabelle di quello "
                       "di\nadesso; --gare: anche con il suo calendario"),
           RunNewYear},
    Action{"anni", "", Tools::Mark("mostra i diari della cartella: anno, uscite,\nchilometri, gare"), RunYears},
    Action{"controlla", Tools::Mark("[DIARIO ...]"),
           Tools::Mark("legge tutto come il programma e dice che cosa\nnon va, una riga per difetto"), RunCheck},
    Action{"ripara", Tools::Mark("[DIARIO ...]"),
           Tools::Mark("ripara ciò che ha un solo rimedio; il resto con\n--sovrascrivi"), RunMend},
    Action{"giornale", Tools::Mark("[riprendi [DATA ...] | dimentica]"),
           Tools::Mark("mostra ciò che è stato scritto e non salvato;\nriprendi: lo riporta nel diario, tutto o i "
                       "giorni\nindicati (anche: liste, percorsi, calendario);\ndimentica: lo cancella dal giornale"),
           RunJournal},
    Action{"importa", Tools::Mark("FILE ..."),
           Tools::Mark("mette nel diario le corse di un orologio (FIT,\nTCX, GPX) o di una tabella (CSV), anche "
                       "intere\ncartelle; --tutti: non solo le corse; --in-moto:\nil tempo senza le pause; --fuso +N: "
                       "l'ora di là;\n--colonna TESTATA=NOME: una colonna della tabella"),
           RunImport},
    Action{"esporta", Tools::Mark("--formato F [-o FILE]"),
           Tools::Mark("i giorni (csv o jsonl), i tempi al chilometro\n(splits), le gare e la tabella attiva (ics)"),
           RunExport},
    Action{"libro", Tools::Mark("--formato F -o FILE"),
           Tools::Mark("il libro dell'anno, da stampare e rilegare (a4 o\na5, in PDF) o per il telefono (html)"),
           RunBook},
    Action{"unisci", Tools::Mark("[CARTELLA | FILE ...]"),
           Tools::Mark("unisce giorno per giorno ciò che due computer\nhanno scritto: i file in conflitto che un "
                       "servizio\nha messo accanto agli altri, o quelli indicati"),
           RunMerge},
    Action{"copie", Tools::Mark("COMANDO ..."),
           Tools::Mark("le copie di sicurezza, come zelvia-copie:\nelenco, confronta, rimetti, crea;\nrimetti NUMERO "
                       "--giorno DATA ...: quei giorni nel\ndiario; rimetti NUMERO --intero: tutto il diario"),
           RunCopiesAction},
};

constexpr const char* kOptions = Tools::Mark(R"(
  --cartella CARTELLA   la cartella del programma: di solito Zelvia, nella
                        cartella personale
  --diario NOME         il diario: di solito quello che si apre all'avvio
  --pagina AZIONE       apre la finestra su quella pagina
  --tsv                 righe da leggere con un programma, con una testata
  --prova               mostra soltanto che cosa cambierebbe
  --si                  non chiede conferma
  --sovrascrivi         anche ciò che altrimenti resta com'è
  --help                mostra questo testo
)");

std::string Usage()
{
    constexpr std::size_t width = 24;
    std::string text = Tools::Tr("Uso: zelvia-strumenti [OPZIONI] AZIONE ...\n\nLavora sui diari di Zelvia quando sono "
                                 "chiusi. Senza AZIONE apre la finestra\ndegli strumenti.\n") +
                       "\n";
    for (const Action& action : kActions) {
        const std::string usage = Tools::Tr(action.usage);
        std::string head = "  " + std::string(action.name) + (usage.empty() ? "" : " ") + usage;
        head += head.size() + 2 > width ? "\n" + std::string(width, ' ') : std::string(width - head.size(), ' ');
        text += head;
        for (const char c : Tools::Tr(action.summary)) {
            text += c == '\n' ? "\n" + std::string(width, ' ') : std::string(1, c);
        }
        text += "\n";
    }
    return text + Tools::Tr(kOptions);
}

int Run(const CommandWords& words, Context& context)
{
    if (words.options.help) {
        context.Out() << Usage();
        return kDone;
    }
    if (words.action.empty()) {
        throw Misuse{Tools::Tr("Manca l'AZIONE.")};
    }
    const auto action =
        std::find_if(kActions.begin(), kActions.end(), [&](const Action& row) { return row.name == words.action; });
    if (action == kActions.end()) {
        throw Misuse{Tools::Tr("Azione sconosciuta: %1", words.action)};
    }
    Arguments arguments(words.action, words.words);
    return action->run(context, arguments);
}

/// What went wrong and what that means for the files.
void TellFailure(Terminal& terminal, const Context& context, const std::string& what)
{
    terminal.err << kProgram << ": " << what << ".\n"
                 << (context.HasChanged()
                         ? Tools::Tr("La modifica era cominciata: il prossimo zelvia-strumenti la completa.") + "\n"
                         : Tools::Tr("Niente è stato cambiato.") + "\n");
}

int RunAndTell(const CommandWords& words, Terminal& terminal)
{
    Context context(words.options, terminal);
    int status = kNotDone;
    if (const auto failure = FailureOf([&] { status = Run(words, context); })) {
        TellFailure(terminal, context, *failure);
    }
    return status;
}

} // namespace

std::span<const Action> Actions()
{
    return kActions;
}

int RunCopiesAction(Context& context, Arguments& arguments)
{
    const Options& options = context.Chosen();
    const std::vector<std::string>& words = arguments.Words();
    const auto has = [&](std::string_view word) { return std::find(words.begin(), words.end(), word) != words.end(); };
    if (has("rimetti") && (has("--giorno") || has("--intero"))) {
        return RunPutBack(context, arguments);
    }
    const CopiesRequest request{std::string(kProgram) + " copie",
                                options.folder.empty() ? fs::path() : ResolvedFolder(options.folder), arguments.Words(),
                                options.tsv, options.rehearsal};
    try {
        return RunCopies(request, has("elenco") || has("confronta") ? context.Out() : context.Told());
    } catch (const SecondPlaceFailure& failure) {
        context.Err() << Tools::Tr(
                             "La copia non è anche nel secondo posto: %1.\nQuelle di sempre ci sono tutte; riprovare "
                             "quando sarà possibile.",
                             failure.what())
                      << "\n";
        return kNotDone;
    }
}

int RunTools(const std::vector<std::string>& words, Terminal& terminal)
{
    try {
        const int status = RunAndTell(SortWords(words), terminal);
        terminal.out.flush();
        return terminal.out.good() ? status : kNotDone;
    } catch (const Misuse& misuse) {
        terminal.err << misuse.text << "\n" << Usage();
        return kMisused;
    }
}

} // namespace zelvia
