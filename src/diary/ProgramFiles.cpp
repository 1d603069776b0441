// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ProgramFiles.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/Workspace.h"

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

Text shareFolder;
Text startDiary;

Text In(TextView folder, TextView name)
{
    return Text(folder) + "\\" + Text(name);
}

/// The status of the file, or of the link itself.
fs::file_status StatusOf(TextView path)
{
    return TrapValueWith(
        fs::file_status(fs::file_type::not_found), [&] { return fs::symlink_status(NativePath(path)); },
        [](const ErroreRunTime&) {});
}

/// The absolute path without links and without a slash at its end.
Text Resolved(const fs::path& path)
{
    std::error_code failed;
    fs::path resolved = fs::weakly_canonical(fs::absolute(path), failed);
    if (failed) {
        resolved = fs::absolute(path).lexically_normal();
    }
    return SystemPath((resolved.has_filename() ? resolved : resolved.parent_path()).string());
}

/// True when nothing was written there yet; a full disk may have left an empty file.
bool IsUnwritten(TextView path)
{
    const fs::file_status status = StatusOf(path);
    return !fs::exists(status) || (fs::is_regular_file(status) && fs::file_size(NativePath(path)) == 0);
}

} // namespace

Text ChooseProgramFolder(const fs::path& given, const fs::path& own, const fs::path& home)
{
    if (!given.empty()) {
        return Resolved(given);
    }
    Text folder = SystemPath(own.string());
    if (fs::exists(StatusOf(In(folder, kStartPointer))) || !FindFolder(In(folder, kDiaryFolder)).empty()) {
        return folder;
    }
    return home.empty() ? Text() : Resolved(home / "Zelvia");
}

bool LayProgramFolder(TextView folder)
{
    return TrapValue("CARTELLA DEL PROGRAMMA - ERRORE : ", false, [&] {
        const Text diaries = In(folder, kDiaryFolder);
        if (FindFolder(diaries).empty()) {
            const Text pointer = In(folder, kStartPointer);
            std::error_code failed;
            fs::create_directories(NativePath(pointer).parent_path(), failed);
            if (!failed && IsUnwritten(pointer)) {
                WritePointer(pointer, "");
            }
            if (!failed) {
                fs::create_directory(NativePath(diaries), failed);
            }
            if (failed) {
                throw ErroreRunTime(ErrorOfErrno(failed.value()));
            }
        }
        return true;
    });
}

Text ShareFolder(const fs::path& own)
{
    // Beside bin, and beside libexec/zelvia.
    for (const char* prefix : {"..", "../.."}) {
        const fs::path share = (own / prefix / "share/zelvia").lexically_normal();
        std::error_code ignored;
        if (fs::is_directory(share, ignored)) {
            return SystemPath(share.string());
        }
    }
    return {};
}

void SetShareFolder(TextView folder)
{
    shareFolder = folder;
}

const Text& StartDiary()
{
    return startDiary;
}

void SetStartDiary(TextView path)
{
    startDiary = path;
}

Text InstalledFile(TextView name)
{
    const Text own = In(ProgramFolder(), name);
    const Text shared = In(shareFolder, name);
    return !fs::exists(StatusOf(own)) && fs::exists(StatusOf(shared)) ? shared : own;
}

} // namespace zelvia
