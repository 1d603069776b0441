// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Descriptor.h"
#include "core/Text.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <utility>

namespace zelvia
{

/// The open journal of a program folder, locked against every other process for the life of the object.
class JournalFile
{
public:
    /// Opens the journal, or makes it. Null when it can't be, when another process has it open, or when it, or its
    /// folder, is a link or somebody else's.
    static std::shared_ptr<JournalFile> Open(TextView programFolder, bool make);

    /// True when another process has it open.
    static bool IsBusy(TextView programFolder);

    /// The folder of all journals; empty when the environment names no place.
    static std::filesystem::path Folder();

    std::size_t Size() const { return size_; }
    /// False when the last line was cut.
    bool EndsLine() const;
    Text Read() const;
    /// Appends all of it or nothing.
    bool Append(TextView bytes);
    bool Cut(std::size_t size);
    bool Remove() const;
    /// Replaces the journal by one of that content, in one step: null when all is as it was.
    std::shared_ptr<JournalFile> Rewritten(TextView bytes) const;
    /// Returns when all of it is on the disk. May be called in another thread.
    void Sync() const;

private:
    JournalFile(int folder, Text name) : folder_(folder), name_(std::move(name)) {}
    bool OpenLocked(const Text& name, int flags);
    void Sweep() const;

    const Descriptor folder_;
    const Text name_;
    std::unique_ptr<const Descriptor> file_;
    std::size_t size_ = 0;
};

} // namespace zelvia
