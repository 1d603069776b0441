// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/FaultyDisk.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zelvia::test
{
namespace
{

std::atomic<FaultyDisk*>& Current()
{
    static std::atomic<FaultyDisk*> disk = nullptr;
    return disk;
}

/// The folders that are being listed while a disk watches, by descriptor.
std::map<int, std::string>& ListedFolders()
{
    static thread_local std::map<int, std::string> folders;
    return folders;
}

/// What can be synced while a disk watches, by descriptor.
struct Syncable {
    std::string path;
    bool folder;
};

std::map<int, Syncable>& Syncables()
{
    static thread_local std::map<int, Syncable> open;
    return open;
}

/// What the C library does not know of a stream of one's own making.
struct OwnStream {
    int descriptor;
    bool buffered; ///< The program's wish for no buffer would take that away.
};

std::map<std::FILE*, OwnStream>& OwnStreams()
{
    static thread_local std::map<std::FILE*, OwnStream> streams;
    return streams;
}

// As much as a reader asks for at a time. A stream of one's own making takes that in one call only from a buffer.
constexpr size_t kPiece = 1 << 15;

/// A file that is open while a disk watches.
struct Stream {
    int descriptor;
    std::string path;
    bool writes;
    std::vector<char> buffer;
};

/// False, with errno set, when the disk lets this call fail.
bool Allows(Call call, const std::string& path, bool writes = false)
{
    FaultyDisk* disk = FaultyDisk::Watching(path.c_str());
    return disk == nullptr || !disk->Fails(call, path, writes);
}

ssize_t ReadStream(void* cookie, char* buffer, size_t size)
{
    const auto& stream = *static_cast<Stream*>(cookie);
    return Allows(Call::Read, stream.path) ? read(stream.descriptor, buffer, size) : -1;
}

/// Writes all of it, or as much as can be, and leaves errno at the reason for the rest.
ssize_t WriteStream(void* cookie, const char* buffer, size_t size)
{
    const auto& stream = *static_cast<Stream*>(cookie);
    int fault = 0;
    size_t left = size;
    if (!Allows(Call::Write, stream.path, true)) {
        fault = errno;
        left = fault == ENOSPC || fault == EDQUOT || fault == EFBIG ? size / 2 : 0;
    }
    size_t done = 0;
    while (done < left) {
        const ssize_t written = write(stream.descriptor, buffer + done, left - done);
        if (written < 0) {
            fault = errno;
            break;
        }
        done += static_cast<size_t>(written);
    }
    errno = fault;
    return static_cast<ssize_t>(done);
}

/// The descriptor is gone even when the closing fails.
int CloseStream(void* cookie)
{
    const std::unique_ptr<Stream> stream(static_cast<Stream*>(cookie));
    Syncables().erase(stream->descriptor);
    // The next stream may be at this one's address.
    std::erase_if(OwnStreams(), [&](const auto& open) { return open.second.descriptor == stream->descriptor; });
    const int closed = close(stream->descriptor);
    return Allows(Call::Close, stream->path, stream->writes) ? closed : -1;
}

std::FILE* OpenStream(const char* path, const char* mode)
{
    const bool reads = *mode == 'r';
    if (!Allows(Call::Open, path, !reads)) {
        return nullptr;
    }
    const int descriptor = open(path, reads ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (descriptor < 0) {
        return nullptr;
    }
    auto* stream = new Stream{descriptor, path, !reads, std::vector<char>(reads ? kPiece : 0)};
    std::FILE* file = fopencookie(stream, mode, {ReadStream, WriteStream, nullptr, CloseStream});
    Syncables()[descriptor] = {path, false};
    if (reads) {
        std::setvbuf(file, stream->buffer.data(), _IOFBF, kPiece);
    }
    OwnStreams()[file] = {descriptor, reads};
    return file;
}

/// The function of that name that comes behind this program's own.
template <typename Function>
Function Next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

FaultyDisk::FaultyDisk(std::string folder, Fault fault) : folder_(std::move(folder)), fault_(std::move(fault))
{
    Current() = this;
}

FaultyDisk::~FaultyDisk()
{
    Current() = nullptr;
    ListedFolders().clear();
    Syncables().clear();
    OwnStreams().clear();
}

FaultyDisk* FaultyDisk::Watching(const char* path)
{
    FaultyDisk* disk = Current();
    const bool watches = disk != nullptr && disk->thread_ == std::this_thread::get_id() &&
                         std::string(path).starts_with(disk->folder_ + "/");
    return watches ? disk : nullptr;
}

bool FaultyDisk::Fails(Call call, const std::string& path, bool writes)
{
    if (call != fault_.call || !path.ends_with(fault_.name)) {
        return false;
    }
    calls_.push_back({path.substr(std::min(path.size(), folder_.size() + 1)), writes});
    if (static_cast<int>(calls_.size()) != fault_.nth) {
        return false;
    }
    struck_ = true;
    if (fault_.meanwhile) {
        fault_.meanwhile();
    }
    errno = fault_.error;
    return fault_.error != 0;
}

int OpenDescriptors()
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        // What wakes the toolkit's threads is no file, and comes and goes with them.
        std::error_code gone;
        count += std::filesystem::read_symlink(entry.path(), gone).string().starts_with("anon_inode:") ? 0 : 1;
    }
    return count;
}

} // namespace zelvia::test

using namespace zelvia::test;

extern "C" {

std::FILE* fopen(const char* path, const char* mode)
{
    static const auto next = Next<std::FILE* (*)(const char*, const char*)>("fopen");
    if (FaultyDisk* disk = FaultyDisk::Watching(path)) {
        disk->NoteOpen(path);
        return OpenStream(path, mode);
    }
    return next(path, mode);
}

int setvbuf(std::FILE* file, char* buffer, int mode, size_t size) noexcept
{
    static const auto next = Next<int (*)(std::FILE*, char*, int, size_t)>("setvbuf");
    const auto& streams = OwnStreams();
    const auto found = streams.find(file);
    return found != streams.end() && found->second.buffered ? 0 : next(file, buffer, mode, size);
}

int fileno(std::FILE* file) noexcept
{
    static const auto next = Next<int (*)(std::FILE*)>("fileno");
    const auto& streams = OwnStreams();
    const auto found = streams.find(file);
    return found == streams.end() ? next(file) : found->second.descriptor;
}

/// How a folder is opened to be synced.
int open(const char* path, int flags, ...)
{
    static const auto next = Next<int (*)(const char*, int, mode_t)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    // The folder watched counts too.
    const std::string below = std::string(path) + "/";
    const bool folder = (flags & O_DIRECTORY) != 0 && FaultyDisk::Watching(below.c_str()) != nullptr;
    if (folder && !Allows(Call::SyncFolder, below)) {
        return -1;
    }
    const int descriptor = next(path, flags, mode);
    // The number may be that of a folder that has been synced.
    Syncables().erase(descriptor);
    if (folder && descriptor >= 0) {
        Syncables()[descriptor] = {below, true};
    }
    return descriptor;
}

int fsync(int descriptor)
{
    static const auto next = Next<int (*)(int)>("fsync");
    const auto& syncables = Syncables();
    const auto found = syncables.find(descriptor);
    if (found == syncables.end()) {
        return next(descriptor);
    }
    // What a test writes need not last, and its hundreds of syncs would take their time.
    const auto [path, folder] = found->second;
    return Allows(folder ? Call::SyncFolder : Call::Sync, path, !folder) ? 0 : -1;
}

/// How the standard library begins to list a folder.
int openat(int folder, const char* path, int flags, ...)
{
    static const auto next = Next<int (*)(int, const char*, int, mode_t)>("openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const bool lists = (flags & O_DIRECTORY) != 0;
    if (lists && !Allows(Call::List, path)) {
        return -1;
    }
    const int descriptor = next(folder, path, flags, mode);
    // The number may be that of a folder whose list has ended.
    ListedFolders().erase(descriptor);
    if (lists && descriptor >= 0 && FaultyDisk::Watching(path) != nullptr) {
        ListedFolders()[descriptor] = path;
    }
    return descriptor;
}

dirent* readdir(DIR* folder)
{
    static const auto next = Next<dirent* (*)(DIR*)>("readdir");
    const auto& folders = ListedFolders();
    const auto found = folders.empty() ? folders.end() : folders.find(dirfd(folder));
    return found == folders.end() || Allows(Call::NextName, found->second) ? next(folder) : nullptr;
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto next = Next<int (*)(const char*, mode_t)>("mkdir");
    return Allows(Call::Make, path) ? next(path, mode) : -1;
}

int stat(const char* path, struct stat* result) noexcept
{
    static const auto next = Next<int (*)(const char*, struct stat*)>("stat");
    return Allows(Call::Look, path) ? next(path, result) : -1;
}

int lstat(const char* path, struct stat* result) noexcept
{
    static const auto next = Next<int (*)(const char*, struct stat*)>("lstat");
    return Allows(Call::Look, path) ? next(path, result) : -1;
}

int remove(const char* path) noexcept
{
    static const auto next = Next<int (*)(const char*)>("remove");
    return Allows(Call::Delete, path) ? next(path) : -1;
}

} // extern "C"
