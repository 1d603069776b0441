// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Ends a program, or fills its disk, at a step of its choice. Loaded ahead of the program (LD_PRELOAD), it counts the
// calls that change a file system; ZELVIA_FAULT says what happens at the one whose number is ZELVIA_FAULT_STEP:
//   kill   half of a write is done, any other call is not, and the process is killed
//   full   from there on half of a write is done, then there is no space; folders and files can't be made
#include <cerrno>
#include <csignal>
#include <cstdarg>
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

int mkdir(const char* path, mode_t mode)
{
    return NoSpace() ? -1 : Next<int(const char*, mode_t)>("mkdir")(path, mode);
}

ssize_t write(int file, const void* bytes, size_t count)
{
    auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
    if (file <= STDERR_FILENO || Kind() == Fault::None || !Due()) {
        return next(file, bytes, count);
    }
    if (Kind() == Fault::Kill) {
        next(file, bytes, count / 2);
        Die();
    }
    static bool full = false;
    if (full || count < 2) {
        errno = ENOSPC;
        return -1;
    }
    full = true;
    return next(file, bytes, count / 2);
}

int fsync(int file)
{
    return NoSpace() ? -1 : Next<int(int)>("fsync")(file);
}

int rename(const char* from, const char* to)
{
    FreeStep();
    return Next<int(const char*, const char*)>("rename")(from, to);
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
