// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "copies/SafeFiles.h"

#include "core/Files.h"
#include "core/RunTimeError.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr mode_t kOwnersFile = 0600;
constexpr mode_t kOwnersFolder = 0700;

template <typename Call>
auto Again(Call&& call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

int Open(const fs::path& path, int flags)
{
    return Again([&] { return ::open(path.c_str(), flags | O_CLOEXEC, kOwnersFile); });
}

int OpenOrFail(const fs::path& path, int flags)
{
    const int file = Open(path, flags);
    if (file < 0) {
        throw FileFailure(path, errno);
    }
    return file;
}

} // namespace

FileFailure::FileFailure(const fs::path& path, int errnoValue)
    : std::runtime_error("«" + path.string() + "»: " + ToUtf8(DescriptionOf(ErrorOfErrno(errnoValue))))
{
}

Descriptor::~Descriptor()
{
    Close();
}

bool Descriptor::Close()
{
    const int number = std::exchange(number_, -1);
    return number < 0 || ::close(number) == 0;
}

std::string ReadFile(const fs::path& path)
{
    const Descriptor file(OpenOrFail(path, O_RDONLY));
    std::string bytes;
    std::array<char, 1 << 16> piece;
    for (;;) {
        const ssize_t count = Again([&] { return ::read(file.Number(), piece.data(), piece.size()); });
        if (count < 0) {
            throw FileFailure(path, errno);
        }
        if (count == 0) {
            return bytes;
        }
        bytes.append(piece.data(), static_cast<std::size_t>(count));
    }
}

void WriteNewFile(const fs::path& path, std::string_view bytes)
{
    Descriptor file(OpenOrFail(path, O_WRONLY | O_CREAT | O_EXCL));
    while (!bytes.empty()) {
        const ssize_t count = Again([&] { return ::write(file.Number(), bytes.data(), bytes.size()); });
        if (count < 0) {
            throw FileFailure(path, errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    if (Again([&] { return ::fsync(file.Number()); }) != 0 || !file.Close()) {
        throw FileFailure(path, errno);
    }
}

void MakeFolders(const fs::path& path)
{
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) {
        return;
    }
    if (path.has_relative_path()) {
        MakeFolders(path.parent_path());
    }
    if (::mkdir(path.c_str(), kOwnersFolder) != 0) {
        const int reason = errno;
        // Another start may have been quicker.
        if (!fs::is_directory(path, ignored)) {
            throw FileFailure(path, reason);
        }
    }
}

void SyncFolder(const fs::path& path)
{
    const Descriptor folder(OpenOrFail(path, O_RDONLY | O_DIRECTORY));
    // A file system that can't do this for a folder says EINVAL, and has nothing more to be done.
    if (Again([&] { return ::fsync(folder.Number()); }) != 0 && errno != EINVAL) {
        throw FileFailure(path, errno);
    }
}

void SyncFolders(const fs::path& path)
{
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
        if (entry.is_directory()) {
            SyncFolder(entry.path());
        }
    }
    SyncFolder(path);
}

FileLock::FileLock(const fs::path& path, std::chrono::milliseconds patience) : file_(OpenOrFail(path, O_RDWR | O_CREAT))
{
    constexpr std::chrono::milliseconds pause(20);
    for (; ::flock(file_.Number(), LOCK_EX | LOCK_NB) != 0; patience -= pause) {
        // Where files can't be locked at all the copies are made without.
        if (errno == ENOLCK || errno == ENOTSUP || errno == ENOSYS) {
            return;
        }
        if (patience <= pause) {
            throw FileFailure("un altro Zelvia sta lavorando alle copie («" + path.string() + "»)");
        }
        std::this_thread::sleep_for(pause);
    }
}

bool IsLocked(const fs::path& path)
{
    const Descriptor file(Open(path, O_RDONLY));
    return file.Number() >= 0 && ::flock(file.Number(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace zelvia
