// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Descriptor.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zelvia
{

/// What went wrong with a file of the machine, as the runner reads it: Italian, UTF-8.
class FileFailure : public std::runtime_error
{
public:
    FileFailure(const std::filesystem::path& path, int errnoValue);
    using std::runtime_error::runtime_error;
};

/// The whole file. Raises FileFailure, as everything below.
std::string ReadFile(const std::filesystem::path& path);

/// True when two files have the same bytes, however long they are.
bool HoldTheSame(const std::filesystem::path& one, const std::filesystem::path& other);

/// Writes a file that must not be there yet, for its owner alone, and brings it to the disk.
void WriteNewFile(const std::filesystem::path& path, std::string_view bytes);

/// The same with the bytes of another file, however long it is.
void CopyNewFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Makes a folder for its owner alone, and those above it that are missing.
void MakeFolders(const std::filesystem::path& path);

/// Brings a folder's own entries to the disk.
void SyncFolder(const std::filesystem::path& path);

/// The same for a folder and all folders below it.
void SyncFolders(const std::filesystem::path& path);

/// A lock on a file, made when it is missing, for the life of the object. Fails when another process holds it for all
/// of `patience`; the machine frees it when its holder ends, in whatever way.
class FileLock
{
public:
    FileLock(const std::filesystem::path& path, std::chrono::milliseconds patience);

private:
    Descriptor file_;
};

/// True when a process holds a lock on the file; false for one that is absent or can't be opened.
bool IsLocked(const std::filesystem::path& path);

} // namespace zelvia
