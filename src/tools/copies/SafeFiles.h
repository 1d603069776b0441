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

/// What went wrong with a file, as the runner reads it: Italian, UTF-8.
class FileFailure : public std::runtime_error
{
public:
    FileFailure(const std::filesystem::path& path, int errnoValue);
    using std::runtime_error::runtime_error;
};

/// The whole file. Raises FileFailure, as do all of the following.
std::string ReadFile(const std::filesystem::path& path);

/// True when two files have the same bytes, however long they are.
bool HoldTheSame(const std::filesystem::path& one, const std::filesystem::path& other);

/// Writes and syncs a file that must not exist yet, readable by its owner only.
void WriteNewFile(const std::filesystem::path& path, std::string_view bytes);

/// The same with the content of another file, however long it is.
void CopyNewFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Writes the whole file or none of it. One that is new can be read by everybody, as what other programs write.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

/// The same for one that is always readable by its owner only, with the folder for it.
void ReplaceOwnFile(const std::filesystem::path& path, std::string_view bytes);

/// For a name that can't be guessed.
std::string RandomDigits();

/// Makes a folder, accessible to its owner only, and the missing ones above it.
void MakeFolders(const std::filesystem::path& path);

/// Syncs a folder's own entries.
void SyncFolder(const std::filesystem::path& path);

/// The same for a folder and all folders below it.
void SyncFolders(const std::filesystem::path& path);

/// True for a folder that can't be written in.
bool IsReadOnly(const std::filesystem::path& folder);

/// A lock on a file, created when missing, for the life of the object. Fails when another process holds it for all of
/// `patience`; the kernel releases it when its holder ends, however it ends.
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
