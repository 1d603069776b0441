// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/SafeFiles.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

/// Reads a file in pieces, all but the last of the same length: the file may be larger than memory.
class PieceReader
{
public:
    explicit PieceReader(const fs::path& path) : path_(path), file_(OpenOrFail(path, O_RDONLY)) {}

    /// The next piece, empty at the end.
    std::string_view Next()
    {
        std::size_t filled = 0;
        while (filled < piece_.size()) {
            const ssize_t count =
                Again([&] { return ::read(file_.Number(), piece_.data() + filled, piece_.size() - filled); });
            if (count < 0) {
                throw FileFailure(path_, errno);
            }
            if (count == 0) {
                break;
            }
            filled += static_cast<std::size_t>(count);
        }
        return {piece_.data(), filled};
    }

private:
    fs::path path_;
    Descriptor file_;
    std::array<char, 1 << 16> piece_;
};

/// A file that must not exist yet, readable by its owner only.
class NewFile
{
public:
    explicit NewFile(const fs::path& path) : path_(path), file_(OpenOrFail(path, O_WRONLY | O_CREAT | O_EXCL)) {}

    void Write(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const ssize_t count = Again([&] { return ::write(file_.Number(), bytes.data(), bytes.size()); });
            if (count < 0) {
                throw FileFailure(path_, errno);
            }
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    /// Syncs and closes it.
    void Finish()
    {
        if (Again([&] { return ::fsync(file_.Number()); }) != 0 || !file_.Close()) {
            throw FileFailure(path_, errno);
        }
    }

private:
    fs::path path_;
    Descriptor file_;
};

void Replace(const fs::path& path, std::string_view bytes, fs::perms permissions)
{
    const fs::path fresh = fs::absolute(path).parent_path() / (".zelvia-" + RandomDigits());
    // Once it has taken its name there is nothing left to remove.
    const struct Removed {
        const fs::path& file;
        ~Removed()
        {
            std::error_code ignored;
            fs::remove(file, ignored);
        }
    } removed{fresh};
    WriteNewFile(fresh, bytes);
    std::error_code ignored;
    fs::permissions(fresh, permissions, ignored); // Not every disk has them.
    fs::rename(fresh, path);
}

} // namespace

FileFailure::FileFailure(const fs::path& path, int errnoValue)
    : std::runtime_error("«" + path.string() + "»: " + ToUtf8(DescriptionOf(ErrorOfErrno(errnoValue))))
{
}

std::string ReadFile(const fs::path& path)
{
    PieceReader file(path);
    std::string bytes;
    for (std::string_view piece = file.Next(); !piece.empty(); piece = file.Next()) {
        bytes.append(piece);
    }
    return bytes;
}

bool HoldTheSame(const fs::path& one, const fs::path& other)
{
    PieceReader first(one);
    PieceReader second(other);
    std::string_view a = first.Next();
    std::string_view b = second.Next();
    while (!a.empty() && a == b) {
        a = first.Next();
        b = second.Next();
    }
    return a == b;
}

void WriteNewFile(const fs::path& path, std::string_view bytes)
{
    NewFile file(path);
    file.Write(bytes);
    file.Finish();
}

void CopyNewFile(const fs::path& from, const fs::path& to)
{
    PieceReader source(from);
    NewFile target(to);
    for (std::string_view piece = source.Next(); !piece.empty(); piece = source.Next()) {
        target.Write(piece);
    }
    target.Finish();
}

void ReplaceFile(const fs::path& path, std::string_view bytes)
{
    constexpr auto common =
        fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read | fs::perms::others_read;
    Replace(path, bytes, fs::exists(path) ? fs::status(path).permissions() : common);
}

void ReplaceOwnFile(const fs::path& path, std::string_view bytes)
{
    MakeFolders(path.parent_path());
    Replace(path, bytes, fs::perms::owner_read | fs::perms::owner_write);
}

std::string RandomDigits()
{
    std::array<unsigned char, 16> bytes{};
    if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        throw FileFailure("getrandom", errno);
    }
    std::string text;
    for (const unsigned char byte : bytes) {
        constexpr std::string_view digits = "0123456789abcdef";
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
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
        // Another start may have been faster.
        if (!fs::is_directory(path, ignored)) {
            throw FileFailure(path, reason);
        }
    }
}

void SyncFolder(const fs::path& path)
{
    const Descriptor folder(OpenOrFail(path, O_RDONLY | O_DIRECTORY));
    // A file system that can't sync folders says EINVAL, and needs no more.
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

bool IsReadOnly(const fs::path& folder)
{
    return ::access(folder.c_str(), W_OK) != 0 && (errno == EROFS || errno == EACCES);
}

FileLock::FileLock(const fs::path& path, std::chrono::milliseconds patience) : file_(OpenOrFail(path, O_RDWR | O_CREAT))
{
    constexpr std::chrono::milliseconds pause(20);
    for (; ::flock(file_.Number(), LOCK_EX | LOCK_NB) != 0; patience -= pause) {
        // Where files can't be locked at all the copies are made without a lock.
        if (errno == ENOLCK || errno == ENOTSUP || errno == ENOSYS) {
            return;
        }
        if (patience <= pause) {
            throw FileFailure(Tools::Tr("un altro Zelvia sta lavorando alle copie («%1»)", path));
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
