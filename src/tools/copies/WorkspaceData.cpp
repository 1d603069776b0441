// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/WorkspaceData.h"

#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"

#include <set>
#include <sys/stat.h>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr TextView kDefaultDiary = "\\ZelviaFile\\prova.zlv";

bool IsHidden(const fs::path& path)
{
    return path.filename().string().starts_with('.');
}

/// The files of a folder, with or without those below it, by the paths that `Iterator` gives.
template <typename Iterator>
std::vector<fs::path> RegularFiles(const fs::path& folder)
{
    std::vector<fs::path> files;
    if (!fs::is_directory(folder)) {
        return files;
    }
    for (Iterator entry(folder), end; entry != end; ++entry) {
        if (IsHidden(entry->path())) {
            if constexpr (std::is_same_v<Iterator, fs::recursive_directory_iterator>) {
                entry.disable_recursion_pending();
            }
        } else if (entry->is_regular_file()) {
            files.push_back(entry->path());
        }
    }
    return files;
}

/// The diary that the program opens at its start, from the program folder on; the default one when the pointer names
/// none or one of another folder.
Text StartDiary(TextView folder)
{
    const Text diary = TrapValueWith(
        Text(), [&] { return ReadPointer(Text(folder) + "\\" + Text(kStartPointer)); }, [](const ErroreRunTime&) {});
    const Text prefix = Text(folder) + "\\";
    if (!diary.starts_with(prefix) || InStr(diary, "\\..") != 0) {
        return Text(kDefaultDiary);
    }
    return diary.substr(folder.size());
}

/// The folder of a diary, both from the program folder on; empty when the diary's name gives none.
Text FolderOfDiary(const Text& diary)
{
    const Text folder = InStr(diary, ".") > InStr(diary, kDiaryFolder) ? Module1::CAPTIONDIR(diary) : Text();
    return folder.ends_with('\\') ? Text() : folder;
}

} // namespace

std::vector<std::string> WorkspaceFiles(const fs::path& folder)
{
    const Text base = SystemPath(folder.string());
    std::set<std::string> files;
    const auto add = [&](const fs::path& file) { files.insert(file.lexically_relative(folder).string()); };
    const auto addIfThere = [&](const fs::path& file) {
        if (fs::is_regular_file(file)) {
            add(file);
        }
    };
    const Text startDiary = StartDiary(base);
    std::set<Text> diaries{Text(kDefaultDiary), startDiary};
    addIfThere(NativePath(base + "\\" + Text(kStartPointer)));
    addIfThere(NativePath(base + startDiary));
    const fs::path diaryFolder = NativePath(base + "\\" + Text(kDiaryFolder));
    for (const fs::path& file : RegularFiles<fs::recursive_directory_iterator>(diaryFolder)) {
        add(file);
        diaries.insert("\\" + Text(kDiaryFolder) + "\\" + SystemPath(file.lexically_relative(diaryFolder).string()));
    }
    for (const Text& diary : diaries) {
        const Text own = FolderOfDiary(diary);
        if (!own.empty()) {
            for (const fs::path& file : RegularFiles<fs::directory_iterator>(NativePath(base + own))) {
                add(file);
            }
        }
    }
    return {files.begin(), files.end()};
}

std::string StateOfFiles(const fs::path& folder)
{
    std::string state;
    for (const std::string& file : WorkspaceFiles(folder)) {
        struct stat status {
        };
        if (::stat((folder / file).c_str(), &status) == 0) {
            state += file + " " + std::to_string(status.st_ino) + " " + std::to_string(status.st_size) + " " +
                     std::to_string(status.st_ctim.tv_sec) + "." + std::to_string(status.st_ctim.tv_nsec) + "\n";
        }
    }
    return state;
}

std::vector<std::string> FilesBelow(const fs::path& folder)
{
    std::set<std::string> files;
    for (const fs::path& file : RegularFiles<fs::recursive_directory_iterator>(folder)) {
        files.insert(file.lexically_relative(folder).string());
    }
    return {files.begin(), files.end()};
}

bool IsInUse(const fs::path& folder)
{
    return IsLocked(folder / ".zelvia.lock");
}

} // namespace zelvia
