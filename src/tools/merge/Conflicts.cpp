// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/merge/Conflicts.h"

#include "core/Conversions.h"
#include "diary/Workspace.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr std::string_view kDigits = "0123456789";

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

/// Where the extension begins, the end of the name when it has none of a diary's.
std::size_t ExtensionOf(const std::string& lower)
{
    for (const std::string_view extension : {".zlv", ".lsx", ".tab"}) {
        if (lower.ends_with(extension)) {
            return lower.size() - extension.size();
        }
    }
    return lower.size();
}

/// The name without the characters from `first` to `last`, and without the blanks before it; none when nothing is left.
std::optional<std::string> Without(const std::string& name, std::size_t first, std::size_t last)
{
    while (first > 0 && name[first - 1] == ' ') {
        --first;
    }
    return first == 0 ? std::nullopt : std::optional(name.substr(0, first) + name.substr(last));
}

/// The names that a file would have without a computer's name or a number at its end.
std::vector<std::string> ShorterNames(const std::string& name)
{
    std::vector<std::string> shorter;
    const std::size_t extension = ExtensionOf(Lower(name));
    for (std::size_t i = name.find('-'); i < extension; i = name.find('-', i + 1)) {
        const std::string word = name.substr(i + 1, extension - i - 1);
        if (i > 0 && word.find_first_not_of(kDigits) != std::string::npos && word.find(' ') == std::string::npos) {
            shorter.push_back(name.substr(0, i) + name.substr(extension));
        }
    }
    const std::size_t open = name.rfind('(', extension);
    if (open != std::string::npos && open + 2 < extension && name[extension - 1] == ')' &&
        name.find_first_not_of(kDigits, open + 1) == extension - 1) {
        if (auto rest = Without(name, open, extension)) {
            shorter.push_back(*std::move(rest));
        }
    }
    return shorter;
}

/// Files whose names their users choose freely, so that a likeness means little.
bool IsNamedFreely(FileKind kind)
{
    return kind == FileKind::Table || kind == FileKind::Pointer;
}

std::optional<std::string> OriginalOf(const fs::path& folder, const std::set<std::string>& files,
                                      const std::string& file)
{
    const fs::path path(file);
    const std::string name = path.filename().string();
    const auto beside = [&](const std::string& other) { return (path.parent_path() / other).string(); };
    if (const auto original = OriginalByMark(name)) {
        return KindOfFile(beside(*original)) ? std::optional(beside(*original)) : std::nullopt;
    }
    for (const std::string& shorter : ShorterNames(name)) {
        const auto kind = KindOfFile(beside(shorter));
        if (!kind || IsNamedFreely(*kind) || !files.contains(beside(shorter))) {
            continue;
        }
        const fs::path stem = path.lexically_relative(kDiaryFolder).replace_extension();
        if (*kind != FileKind::Diary || !fs::exists(fs::symlink_status(folder / stem))) {
            return beside(shorter);
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<FileKind> KindOfFile(std::string_view path)
{
    const fs::path file(path);
    const std::string extension = file.extension().string();
    if (SameText(file.begin()->string(), kDiaryFolder)) {
        return SameText(extension, ".zlv") ? std::optional(FileKind::Diary) : std::nullopt;
    }
    static constexpr std::array<std::pair<TextView, FileKind>, 3> names = {
        {{"ListePercorso", FileKind::Routes}, {"CalendarioGare", FileKind::Races}, {"nometab", FileKind::Pointer}}};
    for (const auto& [name, kind] : names) {
        if (file.has_parent_path() && SameText(file.filename().string(), name)) {
            return kind;
        }
    }
    return !file.has_parent_path()       ? std::nullopt
           : SameText(extension, ".lsx") ? std::optional(FileKind::List)
           : SameText(extension, ".tab") ? std::optional(FileKind::Table)
                                         : std::nullopt;
}

std::optional<std::string> OriginalByMark(const std::string& name)
{
    const std::string lower = Lower(name);
    const std::size_t word = std::min(lower.find("conflict"), lower.find("conflitt"));
    if (word == std::string::npos) {
        return std::nullopt;
    }
    const std::size_t open = lower.rfind('(', word);
    const std::size_t close = lower.find(')', word);
    if (open != std::string::npos && close != std::string::npos && lower.find(')', open) == close) {
        return Without(name, open, close + 1);
    }
    constexpr std::string_view sync = "sync-";
    const bool synced = std::string_view(lower).substr(0, word).ends_with(sync);
    const std::size_t start = word - (synced ? sync.size() : 0);
    const std::size_t end = std::max(ExtensionOf(lower), start);
    constexpr std::string_view separators = "._- ";
    const bool dated = lower.find_first_of(kDigits, word) < end;
    if (start == 0 || separators.find(lower[start - 1]) == std::string_view::npos || !dated) {
        return std::nullopt;
    }
    return Without(name, start - 1, end);
}

std::vector<Conflict> FindConflicts(const fs::path& folder)
{
    const std::vector<std::string> names = WorkspaceFiles(folder);
    const std::set<std::string> files(names.begin(), names.end());
    std::vector<Conflict> conflicts;
    for (const std::string& file : names) {
        auto original = OriginalOf(folder, files, file);
        if (original && !fs::is_symlink(fs::symlink_status(folder / file))) {
            conflicts.push_back({file, *std::move(original)});
        }
    }
    return conflicts;
}

} // namespace zelvia
