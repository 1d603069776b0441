// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/StartMemory.h"

#include "core/StateFolder.h"
#include "tools/copies/SafeFiles.h"

#include <algorithm>
#include <exception>
#include <sstream>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// A note is a line of three columns.
std::string InColumn(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

} // namespace

StartMemory::StartMemory(fs::path file) : file_(std::move(file))
{
    try {
        std::istringstream lines(fs::exists(file_) ? ReadFile(file_) : "");
        for (std::string kind, folder, value;
             std::getline(lines, kind, '\t') && std::getline(lines, folder, '\t') && std::getline(lines, value);) {
            notes_[{kind, folder}] = value;
        }
    } catch (const std::exception&) {
        notes_.clear();
    }
}

std::string StartMemory::Of(const std::string& kind, const fs::path& folder) const
{
    const auto note = notes_.find({kind, InColumn(folder.string())});
    return note == notes_.end() ? "" : note->second;
}

void StartMemory::Note(const std::string& kind, const fs::path& folder, const std::string& value)
{
    if (Of(kind, folder) == InColumn(value)) {
        return;
    }
    notes_[{kind, InColumn(folder.string())}] = InColumn(value);
    std::string bytes;
    for (const auto& [key, note] : notes_) {
        bytes += note.empty() ? "" : key.first + "\t" + key.second + "\t" + note + "\n";
    }
    try {
        if (!file_.empty()) {
            ReplaceOwnFile(file_, bytes);
        }
    } catch (const std::exception&) {
        // It is said once more next time.
        return;
    }
}

fs::path StartMemoryFile()
{
    return StateFile("avvio");
}

} // namespace zelvia
