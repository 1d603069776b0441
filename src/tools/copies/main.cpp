// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// zelvia-copie: keeps copies of a diary, lists and compares them and puts them back.
#include "tools/copies/CopyStore.h"
#include "tools/copies/CopyTexts.h"
#include "tools/copies/SafeFiles.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

namespace fs = std::filesystem;
using namespace zelvia;

constexpr int kGood = 0;
constexpr int kFailed = 1;
constexpr int kMisused = 2;

constexpr std::string_view kUsage = R"(Uso: zelvia-copie [--cartella CARTELLA] COMANDO

Le copie dei diari di Zelvia, una prima di ogni avvio se qualcosa è cambiato.

  elenco                  mostra le copie, l'ultima in fondo
  confronta NUMERO        mostra, giorno per giorno, che cosa è cambiato dopo
                          quella copia
  rimetti NUMERO NUOVA    mette quella copia nella cartella NUOVA, che non deve
                          esserci ancora o dev'essere vuota
  crea                    fa subito una copia, se qualcosa è cambiato

  --cartella CARTELLA     la cartella del programma: di solito Zelvia, nella
                          cartella personale; per «confronta» quella della copia
  --help                  mostra questo testo
)";

/// A command line that can't be followed, with what to say about it.
struct Misuse {
    std::string text;
};

struct Arguments {
    fs::path folder; ///< Empty when none is given.
    std::vector<std::string> words;
};

void Say(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

/// The path as the program in that folder knows it: absolute, without links, without a slash at its end.
fs::path Resolved(const fs::path& path)
{
    const fs::path resolved = fs::weakly_canonical(fs::absolute(path));
    return resolved.has_filename() ? resolved : resolved.parent_path();
}

Arguments Parse(int argc, char** argv)
{
    Arguments arguments;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--cartella") {
            if (++i == argc || *argv[i] == '\0') {
                throw Misuse{"Dopo --cartella manca la CARTELLA."};
            }
            arguments.folder = Resolved(argv[i]);
        } else if (word.starts_with("--") && word != "--help") {
            throw Misuse{"Opzione sconosciuta: " + word};
        } else {
            arguments.words.push_back(word);
        }
    }
    return arguments;
}

void ExpectWords(const Arguments& arguments, std::size_t count)
{
    if (arguments.words.size() < count) {
        throw Misuse{"Per «" + arguments.words[0] + "» manca qualcosa."};
    }
    if (arguments.words.size() > count) {
        throw Misuse{"Per «" + arguments.words[0] + "» «" + arguments.words[count] + "» è di troppo."};
    }
}

CopyStore Store()
{
    const fs::path root = CopyFolder();
    if (root.empty()) {
        throw FileFailure("la cartella personale non è nota (HOME)");
    }
    return CopyStore(root);
}

Copy CopyOf(const CopyStore& store, const std::string& word)
{
    int number = 0;
    const auto [end, failed] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (failed != std::errc() || end != word.data() + word.size()) {
        throw Misuse{"«" + word + "» non è il numero di una copia."};
    }
    const auto copy = store.Find(number);
    if (!copy) {
        throw FileFailure("la copia " + word + " non c'è; «zelvia-copie elenco» mostra quelle che ci sono");
    }
    return *copy;
}

/// Which folders the program can live in is told by a script that the launcher shares; it says why not by itself.
bool FolderWillDo(const fs::path& folder)
{
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    std::string script = own.parent_path() / "share/zelvia/folder-check.sh";
    std::string shell = "bash";
    std::string path = folder;
    char* command[] = {shell.data(), script.data(), path.data(), nullptr};
    pid_t child = 0;
    int status = 0;
    if (const int failed = posix_spawnp(&child, command[0], nullptr, nullptr, command, environ); failed != 0) {
        throw FileFailure(script, failed);
    }
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int List(const Arguments& arguments)
{
    ExpectWords(arguments, 1);
    const CopyStore store = Store();
    std::vector<Copy> copies = store.List();
    std::erase_if(copies,
                  [&](const Copy& copy) { return !arguments.folder.empty() && copy.folder != arguments.folder; });
    Say(stdout, copies.empty() ? "Non ci sono copie.\n" : TextOfList(copies));
    return kGood;
}

int Compare(const Arguments& arguments)
{
    ExpectWords(arguments, 2);
    const Copy copy = CopyOf(Store(), arguments.words[1]);
    Say(stdout, TextOfComparison(copy, arguments.folder.empty() ? copy.folder : arguments.folder));
    return kGood;
}

int PutBack(const Arguments& arguments)
{
    ExpectWords(arguments, 3);
    CopyStore store = Store();
    const Copy copy = CopyOf(store, arguments.words[1]);
    if (arguments.words[2].empty()) {
        throw Misuse{"Il nome della cartella NUOVA è vuoto."};
    }
    const fs::path target = Resolved(arguments.words[2]);
    if (!FolderWillDo(target)) {
        return kMisused;
    }
    const std::vector<std::string> elsewhere = store.PutBack(copy, target);
    Say(stdout, "La copia " + arguments.words[1] + " è in «" + target.string() +
                    "». Si apre con il comando «zelvia» seguito dal nome di questa cartella.\n");
    for (const std::string& file : elsewhere) {
        Say(stdout, "Attenzione: «" + file + "» indica un file di un'altra cartella.\n");
    }
    return kGood;
}

int Create(const Arguments& arguments)
{
    ExpectWords(arguments, 1);
    CopyStore store = Store();
    const char* home = std::getenv("HOME");
    const fs::path folder =
        arguments.folder.empty() && home != nullptr ? Resolved(fs::path(home) / "Zelvia") : arguments.folder;
    if (folder.empty()) {
        throw Misuse{"La cartella personale non è nota (HOME): indicare --cartella CARTELLA."};
    }
    switch (store.Take(folder, std::chrono::system_clock::now())) {
    case CopyOutcome::Made: Say(stdout, "Copia fatta.\n"); break;
    case CopyOutcome::Unchanged: Say(stdout, "Niente è cambiato dall'ultima copia.\n"); break;
    case CopyOutcome::NothingThere: Say(stdout, "In «" + folder.string() + "» non c'è niente da copiare.\n"); break;
    case CopyOutcome::InUse: Say(stdout, "Il diario è aperto: la copia si fa quando è chiuso.\n"); break;
    }
    return kGood;
}

int Run(const Arguments& arguments)
{
    static constexpr std::pair<std::string_view, int (*)(const Arguments&)> commands[] = {
        {"elenco", List}, {"confronta", Compare}, {"rimetti", PutBack}, {"crea", Create}};
    if (arguments.words.empty()) {
        throw Misuse{"Manca il COMANDO."};
    }
    if (arguments.words[0] == "--help") {
        Say(stdout, kUsage);
        return kGood;
    }
    for (const auto& [name, command] : commands) {
        if (arguments.words[0] == name) {
            return command(arguments);
        }
    }
    throw Misuse{"Comando sconosciuto: " + arguments.words[0]};
}

} // namespace

int main(int argc, char** argv)
{
    // A file that may grow no further is an error like any other, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(Parse(argc, argv));
    } catch (const Misuse& misuse) {
        Say(stderr, misuse.text + "\n");
        Say(stderr, kUsage);
        return kMisused;
    } catch (const fs::filesystem_error& error) {
        Say(stderr, "zelvia-copie: " + std::string(FileFailure(error.path1(), error.code().value()).what()) + "\n");
    } catch (const std::exception& error) {
        Say(stderr, "zelvia-copie: " + std::string(error.what()) + "\n");
    }
    return kFailed;
}
