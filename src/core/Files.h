// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <vector>

namespace zelvia
{

/// The program's folder in backslash form, without a backslash at its end.
const Text& ProgramFolder();
void SetProgramFolder(TextView folder);

/// The native form of a path in backslash form. A name that is absent falls back to the single
/// entry of its folder that differs from it only in case. Raises error 76 for the empty path and for a name directly
/// under the root, which is what a path with an unknown folder becomes; 52 for a path with a NUL character.
std::filesystem::path NativePath(TextView path);

/// The backslash form of a native path (UTF-8).
Text SystemPath(std::string_view native);

/// `path` as the disk spells it: what is absent falls back as in NativePath, and stays as it is when nothing is there.
Text PathOnDisk(TextView path);

/// `path` respelled to begin with `folder` when it is inside that folder on the disk; any other path unchanged.
Text PathWithin(TextView path, TextView folder);

/// True when there is a folder at `path` or one could be made: the nearest part of it that exists is a folder.
bool CanBeFolder(TextView path);

enum class OpenMode { Input, Output };

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file whole, unbuffered; Output creates or empties it at once. Raises error 53 for a missing file at Input,
/// 76 for a missing folder, 75 for no permission and for anything but a file (at Output also a character device), and
/// the others of ErrorOfErrno. `newIn`, if given, is set to the folder in which Output has made the file, empty if it
/// was there.
FileHandle OpenFile(TextView path, OpenMode mode, std::filesystem::path* newIn = nullptr);

/// Returns when what was written to the file is on the disk. Something that can't be synced, such as a device, counts
/// as written. Raises error 61 when the disk turns out to be full, 57 on another failure.
void SyncFile(std::FILE* file);

/// The same for the names in a folder, after a file was created in it. A folder without read permission is left alone.
void SyncNames(const std::filesystem::path& folder);

/// The error number of a failed system call on a file: 52, 57, 61, 67, 70, 75 or 76.
int ErrorOfErrno(int errnoValue);

/// The name of the folder at `path` if there is one, else the empty text.
Text FindFolder(TextView path);

/// The regular files of a folder, hidden ones left out, in order of their names; none for a folder that is absent. One
/// whose type the system can't determine counts as a file. Raises error 75 for an unreadable folder, and the others
/// of ErrorOfErrno.
std::vector<Text> FilesIn(TextView folder);

/// The same for a folder that must exist. Raises error 76 when it is absent or not a folder, 75 without permission.
std::vector<Text> ReadFolder(TextView folder);

/// Deletes a file. Raises error 53 when it is absent, 75 for a folder or without permission.
void DeleteFile(TextView path);

/// Makes a folder and syncs its name. Raises error 75 when it exists or can't be made, 76 when its parent is missing.
void MakeFolder(TextView path);

} // namespace zelvia
