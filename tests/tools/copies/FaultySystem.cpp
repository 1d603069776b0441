// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Ends a program, or fills its disk, at a step of its choice. Loaded ahead of the program (LD_PRELOAD), it counts the
// calls that change a file system; ZELVIA_FAULT says what happens at the one whose number is ZELVIA_FAULT_STEP:
//   kill   half of a write is done, any other call is not, and the process is killed
//   full   from there on half of a write is done, then there is no space; folders and files can't be made
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

enum class Fault { None, Kill, Full };

template <typename Function>
Function* Next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

Fault Kind()
{
    const char* kind = std::getenv("ZELVIA_FAULT");
    if (kind == nullptr) {
        return Fault::None;
    }
    return std::strcmp(kind, "kill") == 0 ? Fault::Kill : Fault::Full;
}

/// Counts a step; true from the chosen one on.
bool Due()
{
    static int step = 0;
    const char* chosen = std::getenv("ZELVIA_FAULT_STEP");
    return chosen != nullptr && ++step >= std::atoi(chosen);
}

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    std::abort();
}

/// A step that takes space. True when it is to fail.
bool NoSpace()
{
    if (Kind() == Fault::None || !Due()) {
        return false;
    }
    if (Kind() == Fault::Kill) {
        Die();
    }
    errno = ENOSPC;
    return true;
}

/// A step that takes none, which works on a full disk.
void FreeStep()
{
    if (Kind() == Fault::Kill && Due()) {
        Die();
    }
}

/// Writes `count` bytes by `writes`, or as far as the fault lets it.
template <typename Write>
ssize_t FaultyWrite(int file, size_t count, Write&& writes)
{
    if (file <= STDERR_FILENO || Kind() == Fault::None || !Due()) {
        return writes(count);
    }
    if (Kind() == Fault::Kill) {
        writes(count / 2);
        Die();
    }
    static bool full = false;
    if (full || count < 2) {
        errno = ENOSPC;
        return -1;
    }
    full = true;
    return writes(count / 2);
}

mode_t ModeOf(int flags, va_list& arguments)
{
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    // A file that is there already takes no new space.
    if ((flags & O_CREAT) != 0 && access(path, F_OK) != 0 && NoSpace()) {
        return -1;
    }
    return Next<int(const char*, int, ...)>("open")(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    if ((flags & O_CREAT) != 0 && faccessat(folder, path, F_OK, 0) != 0 && NoSpace()) {
        return -1;
    }
    return Next<int(int, const char*, int, ...)>("openat")(folder, path, flags, mode);
}

int mkdir(const char* path, mode_t mode)
{
    return NoSpace() ? -1 : Next<int(const char*, mode_t)>("mkdir")(path, mode);
}

int mkdirat(int folder, const char* path, mode_t mode)
{
    return NoSpace() ? -1 : Next<int(int, const char*, mode_t)>("mkdirat")(folder, path, mode);
}

ssize_t write(int file, const void* bytes, size_t count)
{
    auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
    return FaultyWrite(file, count, [&](size_t part) { return next(file, bytes, part); });
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t offset)
{
    auto* const next = Next<ssize_t(int, const void*, size_t, off_t)>("pwrite");
    return FaultyWrite(file, count, [&](size_t part) { return next(file, bytes, part, offset); });
}

int ftruncate(int file, off_t size)
{
    FreeStep();
    return Next<int(int, off_t)>("ftruncate")(file, size);
}

FILE* fopen(const char* path, const char* mode)
{
    if (mode[0] == 'w' && access(path, F_OK) != 0 && NoSpace()) {
        return nullptr;
    }
    return Next<FILE*(const char*, const char*)>("fopen")(path, mode);
}

// Of the program's own streams that write files none has a buffer, and all write single bytes.
size_t fwrite(const void* bytes, size_t size, size_t count, FILE* stream)
{
    auto* const next = Next<size_t(const void*, size_t, size_t, FILE*)>("fwrite");
    const ssize_t written = FaultyWrite(
        fileno(stream), count, [&](size_t part) { return static_cast<ssize_t>(next(bytes, size, part, stream)); });
    if (written < static_cast<ssize_t>(count)) {
        // The real one has tried the rest again.
        errno = ENOSPC;
    }
    return written < 0 ? 0 : static_cast<size_t>(written);
}

int fsync(int file)
{
    return NoSpace() ? -1 : Next<int(int)>("fsync")(file);
}

int fdatasync(int file)
{
    return NoSpace() ? -1 : Next<int(int)>("fdatasync")(file);
}

int rename(const char* from, const char* to)
{
    FreeStep();
    return Next<int(const char*, const char*)>("rename")(from, to);
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to)
{
    FreeStep();
    return Next<int(int, const char*, int, const char*)>("renameat")(fromFolder, from, toFolder, to);
}

int unlink(const char* path)
{
    FreeStep();
    return Next<int(const char*)>("unlink")(path);
}

int unlinkat(int folder, const char* path, int flags)
{
    FreeStep();
    return Next<int(int, const char*, int)>("unlinkat")(folder, path, flags);
}

int rmdir(const char* path)
{
    FreeStep();
    return Next<int(const char*)>("rmdir")(path);
}

} // extern "C"
