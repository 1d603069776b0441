// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/JournalFile.h"

#include "core/StateFolder.h"
#include "diary/JournalLines.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kTemporary = "-";

/// Far more than a diary in which every value has changed.
constexpr std::size_t kLongest = std::size_t(1) << 26;

/// A file of the user's own, without a second name; nobody else may read it from now on.
bool IsOwnFile(int file)
{
    struct stat status {
    };
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid() ||
        status.st_nlink != 1) {
        return false;
    }
    constexpr mode_t others = S_IRWXG | S_IRWXO;
    return (status.st_mode & others) == 0 || ::fchmod(file, S_IRUSR | S_IWUSR) == 0;
}

/// Opens the folder of the journals, no link and the user's own; negative for none.
int OpenFolder(const fs::path& path, bool make)
{
    if (make) {
        std::error_code ignored;
        fs::create_directories(path.parent_path(), ignored);
        ::mkdir(path.c_str(), S_IRWXU);
    }
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status {
    };
    if (folder >= 0 && (::fstat(folder, &status) != 0 || status.st_uid != ::geteuid())) {
        ::close(folder);
        return -1;
    }
    return folder;
}

/// Writes all of it from `offset` on.
bool WriteAt(int file, TextView bytes, std::size_t offset)
{
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

fs::path JournalFile::Folder()
{
    return StateFile("giornale");
}

std::shared_ptr<JournalFile> JournalFile::Open(TextView programFolder, bool make)
{
    const fs::path path = Folder();
    const int folder = path.empty() ? -1 : OpenFolder(path, make);
    if (folder < 0) {
        return nullptr;
    }
    std::shared_ptr<JournalFile> journal(new JournalFile(folder, Hexadecimal(ChecksumOf(programFolder))));
    return journal->OpenLocked(journal->name_, make ? O_CREAT : 0) ? journal : nullptr;
}

bool JournalFile::IsBusy(TextView programFolder)
{
    const fs::path path = Folder() / Hexadecimal(ChecksumOf(programFolder));
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    return file.Number() >= 0 && ::flock(file.Number(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool JournalFile::OpenLocked(const Text& name, int flags)
{
    constexpr int common = O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    constexpr mode_t mode = S_IRUSR | S_IWUSR;
    const auto opened = [&](int access) { return ::openat(folder_.Number(), name.c_str(), access | common, mode); };
    int number = opened(O_RDWR | flags);
    // What can't be written can still be reported.
    if (number < 0 && flags == 0 && (errno == EROFS || errno == EACCES)) {
        number = opened(O_RDONLY);
    }
    auto file = std::make_unique<const Descriptor>(number);
    if (number < 0 || !IsOwnFile(number) || ::flock(number, LOCK_EX | LOCK_NB) != 0) {
        return false;
    }
    const off_t end = ::lseek(file->Number(), 0, SEEK_END);
    if (end < 0 || static_cast<std::size_t>(end) > kLongest) {
        return false;
    }
    file_ = std::move(file);
    size_ = static_cast<std::size_t>(end);
    return true;
}

bool JournalFile::EndsLine() const
{
    char last = '\n';
    return size_ == 0 || (::pread(file_->Number(), &last, 1, static_cast<off_t>(size_ - 1)) == 1 && last == '\n');
}

Text JournalFile::Read() const
{
    Text bytes(size_, '\0');
    std::size_t got = 0;
    while (got < bytes.size()) {
        const ssize_t read = ::pread(file_->Number(), bytes.data() + got, bytes.size() - got, static_cast<off_t>(got));
        if (read < 0 && errno == EINTR) {
            continue;
        }
        if (read <= 0) {
            break;
        }
        got += static_cast<std::size_t>(read);
    }
    bytes.resize(got);
    return bytes;
}

bool JournalFile::Append(TextView bytes)
{
    if (bytes.size() > kLongest - size_) {
        return false;
    }
    if (!WriteAt(file_->Number(), bytes, size_)) {
        Cut(size_);
        return false;
    }
    size_ += bytes.size();
    return true;
}

bool JournalFile::Cut(std::size_t size)
{
    if (::ftruncate(file_->Number(), static_cast<off_t>(size)) != 0) {
        return false;
    }
    size_ = size;
    return true;
}

bool JournalFile::Remove() const
{
    return ::unlinkat(folder_.Number(), name_.c_str(), 0) == 0;
}

std::shared_ptr<JournalFile> JournalFile::Rewritten(TextView bytes) const
{
    Sweep();
    std::uint64_t random = 0;
    if (::getrandom(&random, sizeof random, 0) != static_cast<ssize_t>(sizeof random)) {
        return nullptr;
    }
    const Text temporary = name_ + kTemporary + Hexadecimal(random);
    const int folder = ::fcntl(folder_.Number(), F_DUPFD_CLOEXEC, 0);
    std::shared_ptr<JournalFile> journal(new JournalFile(folder, name_));
    if (journal->OpenLocked(temporary, O_CREAT | O_EXCL) && journal->Append(bytes) &&
        ::fdatasync(journal->file_->Number()) == 0 &&
        ::renameat(folder, temporary.c_str(), folder, name_.c_str()) == 0) {
        return journal;
    }
    ::unlinkat(folder_.Number(), temporary.c_str(), 0);
    return nullptr;
}

/// Removes the temporary files that killed processes have left.
void JournalFile::Sweep() const
{
    std::error_code failed;
    std::vector<Text> left;
    for (fs::directory_iterator entry(Folder(), failed), end; !failed && entry != end; entry.increment(failed)) {
        const Text name = entry->path().filename().string();
        if (name.starts_with(name_ + kTemporary)) {
            left.push_back(name);
        }
    }
    for (const Text& name : left) {
        ::unlinkat(folder_.Number(), name.c_str(), 0);
    }
}

void JournalFile::Sync() const
{
    ::fdatasync(file_->Number());
    ::fsync(folder_.Number());
}

} // namespace zelvia
