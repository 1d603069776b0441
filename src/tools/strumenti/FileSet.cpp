// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/FileSet.h"

#include "core/Descriptor.h"
#include "core/Tr.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

// Hidden, as nothing of a diary is.
constexpr const char* kPending = ".zelvia-strumenti";
constexpr std::string_view kTemporary = ".zelvia-strumenti-";

// What the folder of a change holds.
constexpr const char* kActionFile = "azione";
constexpr const char* kBefore = "prima";
constexpr const char* kAfter = "dopo";
constexpr const char* kGone = "via"; // Empty files under the names of those that go.

[[noreturn]] void RaiseLink(const fs::path& path)
{
    throw FileFailure(
        Tools::Tr("«%1» è un collegamento, che non viene seguito: al suo posto ci vuole il file o la cartella", path));
}

bool IsLink(const fs::path& path)
{
    return fs::is_symlink(fs::symlink_status(path));
}

std::string RandomName()
{
    return std::string(kTemporary) + RandomDigits();
}

/// A folder made by nobody else, accessible to its owner only.
fs::path MakeTemporaryFolder(const fs::path& parent)
{
    fs::path place = parent / RandomName();
    if (::mkdir(place.c_str(), S_IRWXU) != 0) {
        throw FileFailure(place, errno);
    }
    return place;
}

/// True for a folder, and no link, of the current user or of root, to whom all of a disk without owners may belong.
bool IsOwnFolder(const fs::path& path)
{
    struct stat status {
    };
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           (status.st_uid == ::geteuid() || status.st_uid == 0);
}

/// Where a file system has permissions.
void CopyPermissions(const fs::path& from, const fs::path& to)
{
    std::error_code ignored;
    fs::permissions(to, fs::status(from).permissions(), ignored);
}

void Rename(const fs::path& from, const fs::path& to)
{
    std::error_code failed;
    fs::rename(from, to, failed);
    if (failed) {
        throw FileFailure(to, failed.value());
    }
}

/// Opens `name` in the open folder `parent`, a folder and no link, which is made if it is missing.
int OpenIn(int parent, const fs::path& name)
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    constexpr mode_t common = 0777;
    const int folder = ::openat(parent, name.c_str(), flags);
    if (folder >= 0 || errno != ENOENT) {
        return folder;
    }
    if (::mkdirat(parent, name.c_str(), common) != 0 && errno != EEXIST) {
        return -1;
    }
    return ::openat(parent, name.c_str(), flags);
}

/// A folder that was reached without following a link below the program folder, and stays the same one.
class ReachedFolder
{
public:
    ReachedFolder(const fs::path& folder, const fs::path& inside)
        : path_(folder / inside), number_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        for (const fs::path& part : inside) {
            if (number_ < 0) {
                break;
            }
            const int outer = std::exchange(number_, OpenIn(number_, part));
            const int reason = errno;
            ::fsync(outer);
            ::close(outer);
            errno = reason;
        }
        if (number_ < 0) {
            const int reason = errno;
            if (reason == ELOOP || IsLink(path_)) {
                RaiseLink(path_);
            }
            throw FileFailure(path_, reason);
        }
    }
    ReachedFolder(const ReachedFolder&) = delete;
    ReachedFolder& operator=(const ReachedFolder&) = delete;
    ~ReachedFolder() { ::close(number_); }

    /// Moves `from` to `name` in this folder, in place of what is there.
    void Receive(const fs::path& from, const fs::path& name) const
    {
        if (::renameat(AT_FDCWD, from.c_str(), number_, name.c_str()) != 0) {
            throw FileFailure(path_ / name, errno);
        }
        Sync();
    }

    void Remove(const fs::path& name) const
    {
        if (::unlinkat(number_, name.c_str(), 0) != 0) {
            throw FileFailure(path_ / name, errno);
        }
        Sync();
    }

private:
    void Sync() const
    {
        // A file system that can't sync folders says EINVAL, and needs no more.
        if (::fsync(number_) != 0 && errno != EINVAL) {
            throw FileFailure(path_, errno);
        }
    }

    fs::path path_;
    int number_;
};

bool IsFile(const fs::path& path)
{
    return fs::is_regular_file(fs::symlink_status(path));
}

/// True when `file` is still what it was when the change was prepared, present or absent.
bool IsUnchanged(const fs::path& file, const fs::path& before)
{
    if (!IsFile(file) || !IsFile(before)) {
        return !fs::exists(fs::symlink_status(file)) && !IsFile(before);
    }
    return HoldTheSame(file, before);
}

/// The files of a change, the pointer to the diary that is opened at the start last.
std::vector<std::string> FilesOf(const fs::path& change)
{
    std::vector<std::string> files = FilesBelow(change / kAfter);
    std::stable_partition(files.begin(), files.end(), [](const std::string& file) { return file != kStartPointer; });
    return files;
}

} // namespace

void RefuseLinks(const fs::path& folder, const fs::path& file)
{
    fs::path place = folder;
    for (const fs::path& part : file) {
        place /= part;
        if (IsLink(place)) {
            RaiseLink(place);
        }
    }
}

FileSet::FileSet(fs::path folder, std::string label)
    : folder_(std::move(folder)), label_(std::move(label)), temporary_(MakeTemporaryFolder(folder_))
{
    MakeFolders(temporary_ / kBefore);
    MakeFolders(temporary_ / kAfter);
}

FileSet::~FileSet()
{
    std::error_code ignored;
    fs::remove_all(temporary_, ignored);
}

fs::path FileSet::PlaceOf(const fs::path& file)
{
    RefuseLinks(folder_, file);
    const fs::path place = temporary_ / kAfter / file;
    MakeFolders(place.parent_path());
    KeepBefore(file);
    return place;
}

void FileSet::KeepBefore(const fs::path& file)
{
    if (IsFile(folder_ / file)) {
        MakeFolders((temporary_ / kBefore / file).parent_path());
        CopyNewFile(folder_ / file, temporary_ / kBefore / file);
    }
}

fs::path FileSet::Write(const fs::path& file, std::string_view bytes)
{
    fs::path place = PlaceOf(file);
    WriteNewFile(place, bytes);
    return place;
}

void FileSet::Copy(const fs::path& from, const fs::path& to)
{
    RefuseLinks(folder_, from);
    const fs::path place = PlaceOf(to);
    CopyNewFile(folder_ / from, place);
    CopyPermissions(folder_ / from, place);
}

void FileSet::Remove(const fs::path& file)
{
    RefuseLinks(folder_, file);
    KeepBefore(file);
    const fs::path mark = temporary_ / kGone / file;
    MakeFolders(mark.parent_path());
    WriteNewFile(mark, {});
}

std::vector<std::string> FileSet::Apply()
{
    for (const std::string& file : FilesOf(temporary_)) {
        if (IsFile(folder_ / file)) {
            CopyPermissions(folder_ / file, temporary_ / kAfter / file);
        }
    }
    WriteNewFile(temporary_ / kActionFile, label_);
    SyncFolders(temporary_);
    Rename(temporary_, folder_ / kPending);
    SyncFolder(folder_);
    const auto completion = Complete(folder_);
    return completion ? completion->leftAlone : throw FileFailure(folder_ / kPending, ENOENT);
}

bool FileSet::IsPending(const fs::path& folder)
{
    return IsOwnFolder(folder / kPending);
}

std::optional<FileSet::Completion> FileSet::Complete(const fs::path& folder)
{
    const fs::path change = folder / kPending;
    if (!IsPending(folder)) {
        return std::nullopt;
    }
    Completion completion{ReadFile(change / kActionFile), {}};
    const auto changeEach = [&](const std::vector<std::string>& names, auto&& changeOne) {
        for (const std::string& name : names) {
            const fs::path file(name);
            const ReachedFolder target(folder, file.parent_path());
            if (IsUnchanged(folder / file, change / kBefore / file)) {
                changeOne(target, file);
            } else {
                completion.leftAlone.push_back(name);
            }
        }
    };
    changeEach(FilesOf(change), [&](const ReachedFolder& target, const fs::path& file) {
        target.Receive(change / kAfter / file, file.filename());
    });
    std::vector<std::string> going = FilesBelow(change / kGone);
    std::erase_if(going, [&](const std::string& name) { return !fs::exists(fs::symlink_status(folder / name)); });
    changeEach(going, [](const ReachedFolder& target, const fs::path& file) { target.Remove(file.filename()); });
    // From here on it counts as made; what is left of it goes with the next sweep at the latest.
    const fs::path done = folder / RandomName();
    Rename(change, done);
    SyncFolder(folder);
    std::error_code ignored;
    fs::remove_all(done, ignored);
    return completion;
}

void FileSet::Sweep(const fs::path& folder)
{
    std::vector<fs::path> left;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().string().starts_with(kTemporary) && IsOwnFolder(entry.path())) {
            left.push_back(entry.path());
        }
    }
    for (const fs::path& path : left) {
        fs::remove_all(path);
    }
}

} // namespace zelvia
