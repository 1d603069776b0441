// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/CopyStore.h"

#include "core/Files.h"
#include "core/StateFolder.h"
#include "core/Tr.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

// Names that no diary can have: they begin with a dot.
constexpr const char* kOrigin = ".cartella";
constexpr const char* kLock = ".blocco";
constexpr const char* kNew = ".nuova";
constexpr const char* kOld = ".vecchia";

void Rename(const fs::path& from, const fs::path& to)
{
    std::error_code failed;
    fs::rename(from, to, failed);
    if (failed) {
        throw FileFailure(to, failed.value());
    }
}

/// True when the pointer is the only file.
bool HoldsNothing(const std::vector<std::string>& files)
{
    return std::all_of(files.begin(), files.end(), [](const std::string& file) { return file == kStartPointer; });
}

/// Copies `files` of one folder into another with `copy`, and syncs them.
template <typename CopyOne>
void CopyFiles(const fs::path& from, const fs::path& to, const std::vector<std::string>& files, CopyOne&& copy)
{
    for (const std::string& file : files) {
        MakeFolders((to / file).parent_path());
        copy(from / file, to / file);
    }
}

bool HoldsTheSame(const fs::path& folder, const std::vector<std::string>& files, const fs::path& copy)
{
    return files == FilesBelow(copy) && std::all_of(files.begin(), files.end(), [&](const std::string& file) {
               return HoldTheSame(folder / file, copy / file);
           });
}

/// Date and time as in the name of a copy.
std::string StampOf(std::chrono::system_clock::time_point now)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    std::array<char, 64> stamp{};
    std::strftime(stamp.data(), stamp.size(), "%Y-%m-%d_%H-%M-%S", &local);
    return stamp.data();
}

std::string NameOf(int number, const std::string& stamp)
{
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
    return digits + "_" + stamp;
}

/// True when the text has the form of the pattern, in which 0 means any digit.
bool HasForm(std::string_view text, std::string_view pattern)
{
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                      [](char c, char form) { return form == '0' ? c >= '0' && c <= '9' : c == form; });
}

/// Number, date and time of a copy, from the name that NameOf gave it; nothing for any other name.
std::optional<Copy> CopyNamed(const std::string& name)
{
    constexpr std::size_t shortest = 6;
    constexpr std::size_t longest = 9;
    const std::size_t digits = std::min(name.find('_'), name.size());
    if (digits < shortest || digits > longest || !HasForm(name, std::string(digits, '0') + "_0000-00-00_00-00-00")) {
        return std::nullopt;
    }
    return Copy{std::stoi(name.substr(0, digits)), name.substr(digits + 1, 10), name.substr(digits + 12), {}, {}};
}

/// A temporary folder next to the final one, removed unless it was put in place.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(fs::path place) : place_(std::move(place))
    {
        fs::remove_all(place_);
        MakeFolders(place_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(place_, ignored);
    }

    const fs::path& Place() const { return place_; }

    void PutInPlace(const fs::path& last)
    {
        SyncFolders(place_);
        Rename(place_, last);
        SyncFolder(last.parent_path());
    }

private:
    fs::path place_;
};

} // namespace

std::vector<Copy> CopyStore::List() const
{
    std::vector<Copy> copies;
    if (!fs::is_directory(root_)) {
        return copies;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(root_)) {
        std::optional<Copy> copy = CopyNamed(entry.path().filename().string());
        if (copy && fs::is_regular_file(entry.path() / kOrigin)) {
            copy->place = entry.path();
            copy->folder = ReadFile(entry.path() / kOrigin);
            copies.push_back(std::move(*copy));
        }
    }
    std::sort(copies.begin(), copies.end(), [](const Copy& a, const Copy& b) { return a.number < b.number; });
    return copies;
}

std::optional<Copy> CopyStore::Find(int number) const
{
    for (Copy& copy : List()) {
        if (copy.number == number) {
            return std::move(copy);
        }
    }
    return std::nullopt;
}

CopyOutcome CopyStore::Take(const fs::path& folder, std::chrono::system_clock::time_point now)
{
    return HoldsNothing(WorkspaceFiles(folder)) ? CopyOutcome::NothingThere
           : IsInUse(folder)                    ? CopyOutcome::InUse
                                                : TakeHeld(folder, now);
}

CopyOutcome CopyStore::TakeHeld(const fs::path& folder, std::chrono::system_clock::time_point now)
{
    const std::vector<std::string> files = WorkspaceFiles(folder);
    return HoldsNothing(files) ? CopyOutcome::NothingThere : Keep({folder, folder, files}, StampOf(now));
}

CopyOutcome CopyStore::Take(const Copy& copy)
{
    return Keep({copy.place, copy.folder, FilesBelow(copy.place)}, copy.date + "_" + copy.time);
}

CopyOutcome CopyStore::Keep(const Source& source, const std::string& stamp)
{
    MakeFolders(root_);
    const FileLock lock(root_ / kLock, patience_);
    Sweep();
    const std::vector<Copy> copies = List();
    const auto newest =
        std::find_if(copies.rbegin(), copies.rend(), [&](const Copy& copy) { return copy.folder == source.folder; });
    if (newest != copies.rend() && HoldsTheSame(source.from, source.files, newest->place)) {
        return CopyOutcome::Unchanged;
    }
    TemporaryFolder temporary(root_ / kNew);
    CopyFiles(source.from, temporary.Place(), source.files, CopyNewFile);
    WriteNewFile(temporary.Place() / kOrigin, source.folder.string());
    temporary.PutInPlace(root_ / NameOf(copies.empty() ? 1 : copies.back().number + 1, stamp));
    Thin(source.folder);
    return CopyOutcome::Made;
}

std::vector<std::string> CopyStore::PutBack(const Copy& copy, const fs::path& target)
{
    if (fs::exists(fs::symlink_status(target)) && !(fs::is_directory(target) && fs::is_empty(target))) {
        throw FileFailure(Tools::Tr(
            "«%1» non è una cartella vuota: una copia si rimette soltanto in una cartella nuova o vuota", target));
    }
    // The copy must not be deleted for its age while it is being read. Nobody can where nothing can be written.
    const auto lock = IsReadOnly(root_) ? nullptr : std::make_unique<FileLock>(root_ / kLock, patience_);
    const std::string origin = "\"" + SystemPath(copy.folder.string()) + "\\";
    const std::string place = "\"" + SystemPath(target.string()) + "\\";
    std::vector<std::string> elsewhere;
    MakeFolders(target.parent_path());
    TemporaryFolder temporary(target.parent_path() / ("." + target.filename().string() + kNew));
    CopyFiles(copy.place, temporary.Place(), FilesBelow(copy.place), [&](const fs::path& from, const fs::path& to) {
        if (from.filename() != kStartPointer && from.filename() != "nometab") {
            CopyNewFile(from, to);
            return;
        }
        std::string bytes = ReadFile(from);
        if (bytes.starts_with(origin)) {
            bytes.replace(0, origin.size(), place);
        } else if (!bytes.starts_with("\"\"")) {
            elsewhere.push_back(from.lexically_relative(copy.place).string());
        }
        WriteNewFile(to, bytes);
    });
    // Replaces an empty folder, too.
    temporary.PutInPlace(target);
    return elsewhere;
}

void CopyStore::Sweep() const
{
    std::vector<fs::path> left;
    for (const fs::directory_entry& entry : fs::directory_iterator(root_)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(kNew) || name.starts_with(kOld)) {
            left.push_back(entry.path());
        }
    }
    for (const fs::path& path : left) {
        fs::remove_all(path);
    }
}

void CopyStore::Thin(const fs::path& folder) const
{
    std::vector<Copy> copies = List();
    std::erase_if(copies, [&](const Copy& copy) { return copy.folder != folder; });
    std::set<std::string> months;
    std::size_t kept = 0;
    for (auto copy = copies.rbegin(); copy != copies.rend(); ++copy) {
        const bool lastOfMonth = months.insert(copy->date.substr(0, sizeof "2026-11" - 1)).second;
        if (++kept <= kKept || lastOfMonth) {
            continue;
        }
        const fs::path going = root_ / (kOld + copy->place.filename().string());
        Rename(copy->place, going);
        fs::remove_all(going);
    }
}

fs::path CopyFolder()
{
    return StateFile("copie");
}

} // namespace zelvia
