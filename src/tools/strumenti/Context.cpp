// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/Context.h"

#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/Module1.h"
#include "diary/Workspace.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kLock = ".zelvia.lock";
constexpr const char* kDefaultDiary = "prova";

/// Opens the program's lock as the program does, but never through a link.
int OpenLock(const fs::path& path)
{
    constexpr int common = O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW;
    constexpr mode_t mode = 0666;
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | common, mode);
    return file >= 0 ? file : ::open(path.c_str(), O_RDONLY | common);
}

} // namespace

fs::path DiaryFolder(const std::string& diary)
{
    // The name of a diary's folder ends at the first dot.
    return diary.substr(0, diary.find('.'));
}

void LoadDiary(const fs::path& folder, const std::string& diary)
{
    using namespace Module1;
    const fs::path file = folder / DiaryFile(diary);
    RefuseLinks(folder, DiaryFile(diary));
    if (!fs::exists(file)) {
        throw FileFailure(Tools::Tr("il diario «%1» non c'è («%2»)", diary, file));
    }
    AzzeraStato();
    AzzeraAnno();
    session.NomeFile = SystemPath(file.string());
    CartellaDiario = SystemPath((folder / DiaryFolder(diary)).string());
    const BoxTexts boxes;
    CaricaDiario(session.NomeFile);
    if (!boxes.All().empty()) {
        throw FileFailure(
            Tools::Tr("il diario «%1» non si legge per intero («%2»): «zelvia-strumenti controlla» dice dove", diary,
                      ToUtf8(boxes.All().front())));
    }
}

void Context::Print(const Table& table)
{
    if (options_.tsv) {
        PrintTsv(Out(), table);
    } else {
        PrintColumns(Out(), table);
    }
}

const fs::path& Context::Folder()
{
    if (lock_ != nullptr) {
        return folder_;
    }
    FindFolder();
    Lock();
    SetProgramFolder(SystemPath(folder_.string()));
    if (options_.rehearsal) {
        if (FileSet::IsPending(folder_)) {
            Err() << Tools::Tr("Una modifica è rimasta a metà: la completa il primo comando senza --prova.") << "\n";
        }
        return folder_;
    }
    if (const auto completion = FileSet::Complete(folder_)) {
        Tell(*completion);
    }
    FileSet::Sweep(folder_);
    return folder_;
}

void Context::FindFolder()
{
    folder_ = options_.folder.empty() ? HomesFolder() : ResolvedFolder(options_.folder);
    if (folder_.empty()) {
        throw Misuse{Tools::Tr("La cartella personale non è nota (HOME): indicare --cartella CARTELLA.")};
    }
    if (!fs::is_directory(folder_)) {
        throw FileFailure(Tools::Tr("«%1» non c'è; la cartella di Zelvia si indica con --cartella", folder_));
    }
    if (NativePath(SystemPath(folder_.string())) != folder_) {
        throw FileFailure(Tools::Tr(
            "nel nome di «%1» c'è un carattere che il programma non conosce (fuori da Windows-1252)", folder_));
    }
    RefuseLinks(folder_, kDiaryFolder);
    if (!fs::is_directory(folder_ / kDiaryFolder)) {
        throw FileFailure(Tools::Tr(
            "in «%1» non ci sono diari di Zelvia (manca la cartella «%2»); la cartella si indica con --cartella",
            folder_, std::string(kDiaryFolder)));
    }
}

void Context::Lock()
{
    lock_ = std::make_unique<Descriptor>(OpenLock(folder_ / kLock));
    if (lock_->Number() < 0) {
        // Without a lock nothing can be written, nor does the program write there.
        if (errno == EACCES || errno == EROFS || errno == ENOENT) {
            return;
        }
        const int reason = errno;
        lock_.reset();
        throw FileFailure(folder_ / kLock, reason);
    }
    // One that only asks whether the diary is open holds the lock for a moment.
    constexpr std::chrono::milliseconds pause(10);
    for (int tries = 20; ::flock(lock_->Number(), LOCK_EX | LOCK_NB) != 0; --tries) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            // Where files can't be locked the program runs without, too.
            return;
        }
        if (tries == 0) {
            // Asked again, it is not taken for locked.
            lock_.reset();
            throw FileFailure(
                Tools::Tr("il diario di «%1» è aperto, o ci lavora un altro comando: chiuderlo e riprovare", folder_));
        }
        std::this_thread::sleep_for(pause);
    }
}

void Context::Tell(const FileSet::Completion& completion)
{
    completed_ = completion.label;
    Told() << Tools::Tr("È stata completata una modifica rimasta a metà: %1.", completion.label) << "\n";
    for (const std::string& file : completion.leftAlone) {
        Err() << Tools::Tr("«%1» è cambiato nel frattempo ed è rimasto com'è.", file) << "\n";
    }
}

std::vector<std::string> Context::Diaries()
{
    // Before anything is passed over: that it is locked by another is not.
    const fs::path& folder = Folder();
    return DiariesOf(folder, ChosenOrNone());
}

bool Context::TellLink()
{
    const fs::path& folder = Folder();
    const fs::path file = DiaryFile(ChosenOrNone());
    const bool link = fs::is_symlink(fs::symlink_status(folder / file));
    if (link) {
        Err() << Tools::Tr("«%1» è un collegamento, che non viene seguito: al suo posto ci vuole il file.", file)
              << "\n";
    }
    return link;
}

std::string Context::ChosenOrNone()
{
    try {
        return ChosenDiary();
    } catch (const FileFailure&) {
        // The one that is opened at the start is in another folder.
        return {};
    }
}

std::string Context::ChosenDiary()
{
    const fs::path& folder = Folder();
    if (options_.diary) {
        return *options_.diary;
    }
    const fs::path pointer = folder / kStartPointer;
    RefuseLinks(folder, kStartPointer);
    if (!fs::exists(pointer)) {
        return kDefaultDiary;
    }
    const auto unreadable = [&](const std::string& why) {
        return FileFailure(Tools::Tr("«%1» %2; il diario si indica con --diario", pointer, why));
    };
    const Text diary = TrapValueWith(
        Text(), [&] { return ReadPointer(SystemPath(pointer.string())); },
        [&](const ErroreRunTime& error) {
            throw unreadable(Tools::Tr("non si legge (%1)", ToUtf8(error.Description())));
        });
    if (diary.empty()) {
        return kDefaultDiary;
    }
    const Text diaries = ProgramFolder() + "\\" + Text(kDiaryFolder) + "\\";
    const Text inside = PathWithin(diary, ProgramFolder() + "\\" + Text(kDiaryFolder));
    std::string native = ToUtf8(inside.starts_with(diaries) ? inside.substr(diaries.size()) : Text());
    std::replace(native.begin(), native.end(), '\\', '/');
    const auto name = DiaryName(native);
    if (!name || InStr(diary, "\\..") != 0) {
        throw unreadable(Tools::Tr("indica «%1», che non è un diario di questa cartella", ToUtf8(diary)));
    }
    return *name;
}

std::string Context::PresentDiary()
{
    std::string diary = ChosenDiary();
    const auto isThere = [&](const fs::path& place) { return fs::exists(fs::symlink_status(Folder() / place)); };
    if (options_.diary && !isThere(DiaryFile(diary)) && !isThere(DiaryFolder(diary))) {
        throw FileFailure(
            Tools::Tr("il diario «%1» non c'è: «zelvia-strumenti anni» mostra quelli che ci sono", diary));
    }
    return diary;
}

void Context::Load(const std::string& diary)
{
    LoadDiary(Folder(), diary);
}

std::optional<int> Context::AskFirst(const std::string& question)
{
    if (options_.rehearsal) {
        Told() << Tools::Tr("È una prova: niente è stato cambiato.") << "\n";
        return kDone;
    }
    if (options_.yes) {
        return std::nullopt;
    }
    if (!terminal_.readLine) {
        Err() << Tools::Tr("Manca la conferma: niente è stato cambiato. Confermare da un terminale, o con --si.")
              << "\n";
        return kNotDone;
    }
    if (Agrees(question)) {
        return std::nullopt;
    }
    Told() << Tools::Tr("Niente è stato cambiato.") << "\n";
    return kNotDone;
}

bool Context::Agrees(const std::string& question)
{
    if (!Asks()) {
        return false;
    }
    Told() << Tools::Tr("%1 (s/N)", question) << " " << std::flush;
    const std::string answer = lock_ == nullptr ? terminal_.readLine().value_or("") : WaitUnlocked();
    return answer == Tools::Tr("s") || answer == Tools::Tr("sì");
}

std::string Context::WaitUnlocked()
{
    const std::string before = StateOfFiles(folder_);
    if (lock_->Number() >= 0) {
        ::flock(lock_->Number(), LOCK_UN);
    }
    std::string answer = terminal_.readLine().value_or("");
    Lock();
    if (StateOfFiles(folder_) != before || FileSet::IsPending(folder_)) {
        throw FileFailure(Tools::Tr("il diario è cambiato mentre si aspettava la risposta: riprovare"));
    }
    return answer;
}

void Context::KeepCopy()
{
    if (copied_) {
        return;
    }
    const fs::path root = CopyFolder();
    if (root.empty()) {
        throw FileFailure(Tools::Tr("la copia di sicurezza non si può fare: la cartella personale non è nota (HOME)"));
    }
    CopyStore(root).TakeHeld(Folder(), std::chrono::system_clock::now());
    copied_ = true;
}

int Context::Apply(FileSet& files)
{
    KeepCopy();
    changed_ = true;
    const std::vector<std::string> leftAlone = files.Apply();
    for (const std::string& file : leftAlone) {
        Err() << Tools::Tr("«%1» è cambiato nel frattempo ed è rimasto com'è.", file) << "\n";
    }
    return leftAlone.empty() ? kDone : kNotDone;
}

} // namespace zelvia
