// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Files.h"

#include "core/Conversions.h"
#include "core/Descriptor.h"
#include "core/RunTimeError.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

Text programFolder;

fs::path FromSystem(TextView path)
{
    std::string utf8 = ToUtf8(path);
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string Utf8Of(const fs::path& path)
{
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

bool Exists(const fs::path& path)
{
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

/// The single entry of `folder` that equals `name`, ignoring case; `name` itself when there is none or more than one.
fs::path EntryIgnoringCase(const fs::path& folder, const fs::path& name)
{
    const Text wanted = FromUtf8(Utf8Of(name));
    fs::path found = name;
    int matches = 0;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        if (SameText(FromUtf8(Utf8Of(entry->path().filename())), wanted)) {
            found = entry->path().filename();
            ++matches;
        }
    }
    return matches == 1 ? found : name;
}

fs::path ResolveCase(const fs::path& path)
{
    if (Exists(path) || !path.has_relative_path()) {
        return path;
    }
    const fs::path folder = ResolveCase(path.parent_path());
    return folder / EntryIgnoringCase(folder, path.filename());
}

[[noreturn]] void RaiseForMissing(const fs::path& path, OpenMode mode)
{
    std::error_code ignored;
    const bool folderExists = fs::is_directory(path.parent_path(), ignored);
    throw ErroreRunTime(folderExists && mode == OpenMode::Input ? Errore::FileNonTrovato : Errore::PercorsoNonTrovato);
}

/// True for a regular file, and for one whose type the system can't determine.
bool MayBeRegular(const fs::directory_entry& entry)
{
    std::error_code failed;
    const fs::file_status status = entry.status(failed);
    return fs::is_regular_file(status) || (!fs::status_known(status) && failed.value() != ELOOP);
}

/// The regular files of a folder, hidden ones left out, sorted. A folder that is missing is an error or has no files.
std::vector<Text> VisibleFiles(TextView folder, bool mustExist)
{
    std::vector<Text> names;
    std::error_code failed = std::make_error_code(std::errc::no_such_file_or_directory);
    if (!folder.empty()) {
        for (fs::directory_iterator entry(ResolveCase(FromSystem(folder)), failed), end; !failed && entry != end;
             entry.increment(failed)) {
            const std::string name = Utf8Of(entry->path().filename());
            if (!name.starts_with('.') && MayBeRegular(*entry)) {
                names.push_back(FromUtf8(name));
            }
        }
    }
    const bool missing = failed.value() == ENOENT || failed.value() == ENOTDIR;
    if (failed && (mustExist || !missing)) {
        throw ErroreRunTime(ErrorOfErrno(failed.value()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Syncs an open file or folder; the errno of a failure, else 0. Something that can't be synced, such as a device, is
/// not a failure.
int SyncFailure(int descriptor)
{
    while (::fsync(descriptor) != 0) {
        if (errno != EINTR) {
            return errno == EINVAL || errno == ENOTSUP ? 0 : errno;
        }
    }
    return 0;
}

void RaiseFailure(int errnoValue)
{
    if (errnoValue != 0) {
        throw ErroreRunTime(ErrorOfErrno(errnoValue));
    }
}

} // namespace

const Text& ProgramFolder()
{
    return programFolder;
}

void SetProgramFolder(TextView folder)
{
    programFolder = folder;
}

fs::path NativePath(TextView path)
{
    // The system would cut such a name off there.
    if (path.find('\0') != TextView::npos) {
        throw ErroreRunTime(Errore::NomeFileNonValido);
    }
    const fs::path native = FromSystem(path);
    if (path.empty() || native.parent_path() == native.root_path()) {
        throw ErroreRunTime(Errore::PercorsoNonTrovato);
    }
    return ResolveCase(native);
}

Text SystemPath(std::string_view native)
{
    Text path = FromUtf8(native);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

Text PathOnDisk(TextView path)
{
    return SystemPath(Utf8Of(ResolveCase(FromSystem(path))));
}

Text PathWithin(TextView path, TextView folder)
{
    const fs::path wanted = ResolveCase(FromSystem(folder));
    const fs::path native = FromSystem(path);
    fs::path rest = native.filename();
    for (fs::path parent = native.parent_path(); parent.has_relative_path(); parent = parent.parent_path()) {
        std::error_code ignored;
        if (fs::equivalent(parent, wanted, ignored)) {
            return Text(folder) + "\\" + SystemPath(Utf8Of(rest));
        }
        rest = parent.filename() / rest;
    }
    return Text(path);
}

bool CanBeFolder(TextView path)
{
    fs::path part = ResolveCase(FromSystem(path));
    while (!Exists(part) && part.has_relative_path()) {
        part = part.parent_path();
    }
    std::error_code ignored;
    return fs::is_directory(part, ignored);
}

int ErrorOfErrno(int errnoValue)
{
    switch (errnoValue) {
    case ENOENT:
    case ENOTDIR: return Errore::PercorsoNonTrovato;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ELOOP:
    case EEXIST: return Errore::AccessoPercorso;
    case ETXTBSY:
    case EBUSY:
    case EAGAIN: return Errore::AutorizzazioneNegata;
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
    case EFBIG: return Errore::DiscoPieno;
    case EMFILE:
    case ENFILE: return Errore::TroppiFile;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ: return Errore::NomeFileNonValido;
    default: return Errore::Periferica;
    }
}

FileHandle OpenFile(TextView path, OpenMode mode, fs::path* newIn)
{
    const fs::path native = NativePath(path);
    std::error_code ignored;
    const fs::file_status status = fs::status(native, ignored);
    // A pipe or a device may never end, or never begin.
    const bool takesText = fs::is_character_file(status) && mode == OpenMode::Output;
    if (fs::exists(status) && !fs::is_regular_file(status) && !takesText) {
        throw ErroreRunTime(Errore::AccessoPercorso);
    }
    errno = 0;
    FileHandle file(std::fopen(native.c_str(), mode == OpenMode::Input ? "rb" : "wb"));
    if (!file) {
        const int reason = errno;
        if (reason == ENOENT) {
            RaiseForMissing(native, mode);
        }
        throw ErroreRunTime(ErrorOfErrno(reason));
    }
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    if (newIn != nullptr) {
        *newIn = mode == OpenMode::Output && !fs::exists(status) ? native.parent_path() : fs::path();
    }
    return file;
}

void SyncFile(std::FILE* file)
{
    RaiseFailure(SyncFailure(::fileno(file)));
}

void SyncNames(const fs::path& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.Number() < 0) {
        RaiseFailure(errno == EACCES || errno == EPERM ? 0 : errno);
        return;
    }
    RaiseFailure(SyncFailure(opened.Number()));
}

Text FindFolder(TextView path)
{
    std::error_code ignored;
    if (path.empty() || !fs::is_directory(ResolveCase(FromSystem(path)), ignored)) {
        return {};
    }
    return Mid(path, InStrRev(path, "\\") + 1);
}

std::vector<Text> FilesIn(TextView folder)
{
    // Files that can't be read must not count as missing, or a first set would overwrite them.
    return VisibleFiles(folder, false);
}

std::vector<Text> ReadFolder(TextView folder)
{
    return VisibleFiles(folder, true);
}

void DeleteFile(TextView path)
{
    const fs::path native = NativePath(path);
    std::error_code failed;
    if (fs::is_directory(native, failed)) {
        throw ErroreRunTime(Errore::AccessoPercorso);
    }
    if (!fs::remove(native, failed)) {
        if (!failed || failed.value() == ENOENT) {
            RaiseForMissing(native, OpenMode::Input);
        }
        throw ErroreRunTime(ErrorOfErrno(failed.value()));
    }
}

void MakeFolder(TextView path)
{
    const fs::path native = NativePath(path);
    std::error_code failed;
    if (!fs::create_directory(native, failed)) {
        throw ErroreRunTime(failed ? ErrorOfErrno(failed.value()) : Errore::AccessoPercorso);
    }
    SyncNames(native.parent_path());
}

} // namespace zelvia
