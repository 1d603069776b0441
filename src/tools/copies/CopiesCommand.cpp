// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/CopiesCommand.h"

#include "core/Tr.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/CopyTexts.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/SecondPlace.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr int kGood = 0;
constexpr int kMisused = 2;

void ExpectWords(const CopiesRequest& request, std::size_t count)
{
    if (request.words.size() < count) {
        throw Misuse{Tools::Tr("Per «%1» manca qualcosa.", request.words[0])};
    }
    if (request.words.size() > count) {
        throw Misuse{Tools::Tr("Per «%1» «%2» è di troppo.", request.words[0], request.words[count])};
    }
}

/// The option is taken out of the words; none without it.
std::optional<fs::path> TakeOrigin(std::vector<std::string>& words)
{
    const auto option = std::find(words.begin(), words.end(), "--da");
    if (option == words.end()) {
        return std::nullopt;
    }
    const auto value = std::next(option);
    if (value == words.end() || value->empty()) {
        throw Misuse{Tools::Tr("Dopo --da manca la CARTELLA.")};
    }
    const fs::path place = ResolvedFolder(*value);
    words.erase(option, std::next(value));
    return place;
}

CopyStore Store(const CopiesRequest& request)
{
    if (!request.from.empty()) {
        return CopyStore(CopiesIn(request.from));
    }
    return UsersCopies();
}

Copy CopyOf(const CopiesRequest& request, const CopyStore& store)
{
    return NumberedCopy(store, request.words[1], request.command);
}

/// Which folders the program can run in is decided by a script shared with the launcher, which reports the reason
/// itself.
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

int List(const CopiesRequest& request, std::ostream& out)
{
    ExpectWords(request, 1);
    const CopyStore store = Store(request);
    std::vector<Copy> copies = store.List();
    std::erase_if(copies, [&](const Copy& copy) { return !request.folder.empty() && copy.folder != request.folder; });
    if (request.tsv) {
        out << TableOfList(copies);
    } else {
        out << (copies.empty() ? Tools::Tr("Non ci sono copie.") + "\n" : TextOfList(copies));
    }
    return kGood;
}

int Compare(const CopiesRequest& request, std::ostream& out)
{
    ExpectWords(request, 2);
    const Copy copy = CopyOf(request, Store(request));
    const fs::path& present = request.folder.empty() ? copy.folder : request.folder;
    out << (request.tsv ? TableOfComparison(copy, present) : TextOfComparison(copy, present));
    return kGood;
}

int PutBack(const CopiesRequest& request, std::ostream& out)
{
    ExpectWords(request, 3);
    CopyStore store = Store(request);
    const Copy copy = CopyOf(request, store);
    if (request.words[2].empty()) {
        throw Misuse{Tools::Tr("Il nome della cartella NUOVA è vuoto.")};
    }
    const fs::path target = ResolvedFolder(request.words[2]);
    if (!FolderWillDo(target)) {
        return kMisused;
    }
    if (request.rehearsal) {
        out << Tools::Tr("La copia %1 andrebbe in «%2».", request.words[1], target) << "\n";
        return kGood;
    }
    const std::vector<std::string> elsewhere = store.PutBack(copy, target);
    out << Tools::Tr("La copia %1 è in «%2». Si apre con il comando «zelvia» seguito dal nome di questa cartella.",
                     request.words[1], target)
        << "\n";
    for (const std::string& file : elsewhere) {
        out << Tools::Tr("Attenzione: «%1» indica un file di un'altra cartella.", file) << "\n";
    }
    return kGood;
}

CopyOutcome BringThere(const CopyStore& store, const fs::path& folder)
{
    try {
        return BringToSecondPlace(store, folder);
    } catch (const FileFailure& failure) {
        throw SecondPlaceFailure(failure.what());
    } catch (const fs::filesystem_error& error) {
        throw SecondPlaceFailure(error.path1(), error.code().value());
    }
}

int Create(const CopiesRequest& request, std::ostream& out)
{
    ExpectWords(request, 1);
    CopyStore store = Store(request);
    const fs::path folder = request.folder.empty() ? HomesFolder() : request.folder;
    if (folder.empty()) {
        throw Misuse{Tools::Tr("La cartella personale non è nota (HOME): indicare --cartella CARTELLA.")};
    }
    if (request.rehearsal) {
        out << Tools::Tr("Si farebbe una copia di «%1», se qualcosa è cambiato.", folder) << "\n";
        return kGood;
    }
    switch (store.Take(folder, std::chrono::system_clock::now())) {
    case CopyOutcome::Made: out << Tools::Tr("Copia fatta.") << "\n"; break;
    case CopyOutcome::Unchanged: out << Tools::Tr("Niente è cambiato dall'ultima copia.") << "\n"; break;
    case CopyOutcome::NothingThere: out << Tools::Tr("In «%1» non c'è niente da copiare.", folder) << "\n"; break;
    case CopyOutcome::InUse: out << Tools::Tr("Il diario è aperto: la copia si fa quando è chiuso.") << "\n"; break;
    }
    if (BringThere(store, folder) == CopyOutcome::Made) {
        out << Tools::Tr("L'ultima copia è anche nel secondo posto, «%1».", SecondPlace()) << "\n";
    }
    return kGood;
}

int NameOrTellSecondPlace(const CopiesRequest& request, std::ostream& out)
{
    if (request.words.size() == 1) {
        const fs::path place = SecondPlace();
        out << (place.empty() ? Tools::Tr("Non c'è un secondo posto per le copie.") + "\n"
                              : Tools::Tr("Le copie vanno anche in «%1».", place) + "\n");
        return kGood;
    }
    ExpectWords(request, 2);
    const std::string& word = request.words[1];
    const bool none = word == "--nessuno";
    if (!none && (word.empty() || word.starts_with("--"))) {
        throw Misuse{Tools::Tr("«%1» non è una CARTELLA.", word)};
    }
    if (request.rehearsal) {
        out << Tools::Tr("È una prova: niente è stato cambiato.") << "\n";
        return kGood;
    }
    if (none) {
        ForgetSecondPlace();
        out << Tools::Tr("Le copie non vanno più in un secondo posto; quelle che ci sono restano.") << "\n";
        return kGood;
    }
    const fs::path place = ResolvedFolder(word);
    NameSecondPlace(place);
    out << Tools::Tr("Alla fine di Zelvia l'ultima copia va anche in «%1».", place) << "\n";
    return kGood;
}

} // namespace

fs::path ResolvedFolder(const fs::path& path)
{
    const fs::path resolved = fs::weakly_canonical(fs::absolute(path));
    return resolved.has_filename() ? resolved : resolved.parent_path();
}

fs::path HomesFolder()
{
    const char* home = std::getenv("HOME");
    return home != nullptr ? ResolvedFolder(fs::path(home) / "Zelvia") : fs::path();
}

CopyStore UsersCopies()
{
    const fs::path root = CopyFolder();
    if (root.empty()) {
        throw FileFailure(Tools::Tr("la cartella personale non è nota (HOME)"));
    }
    return CopyStore(root);
}

Copy NumberedCopy(const CopyStore& store, const std::string& word, const std::string& command)
{
    int number = 0;
    const auto [end, failed] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (failed != std::errc() || end != word.data() + word.size()) {
        throw Misuse{Tools::Tr("«%1» non è il numero di una copia.", word)};
    }
    const auto copy = store.Find(number);
    if (!copy) {
        throw FileFailure(Tools::Tr("la copia %1 non c'è; «%2 elenco» mostra quelle che ci sono", word, command));
    }
    return *copy;
}

int RunCopies(const CopiesRequest& given, std::ostream& out)
{
    static constexpr std::pair<std::string_view, int (*)(const CopiesRequest&, std::ostream&)> commands[] = {
        {"elenco", List},
        {"confronta", Compare},
        {"rimetti", PutBack},
        {"crea", Create},
        {"secondo-posto", NameOrTellSecondPlace}};
    CopiesRequest request = given;
    if (const auto origin = TakeOrigin(request.words)) {
        request.from = *origin;
    }
    if (request.words.empty()) {
        throw Misuse{Tools::Tr("Manca il COMANDO.")};
    }
    for (const auto& [name, command] : commands) {
        if (request.words[0] == name) {
            if (!request.from.empty() && (command == Create || command == NameOrTellSecondPlace)) {
                throw Misuse{Tools::Tr("«--da» non va con «%1».", request.words[0])};
            }
            return command(request, out);
        }
    }
    throw Misuse{Tools::Tr("Comando sconosciuto: %1", request.words[0])};
}

} // namespace zelvia
