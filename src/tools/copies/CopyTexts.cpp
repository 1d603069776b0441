// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/CopyTexts.h"

#include "core/Conversions.h"
#include "core/Tr.h"
#include "diary/DiaryDifference.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr int kDaysOfDiary = 366;

/// 2026-11-21 as 21/11/2026.
std::string DateOf(const Copy& copy)
{
    return copy.date.substr(8, 2) + "/" + copy.date.substr(5, 2) + "/" + copy.date.substr(0, 4);
}

/// 14-05-33 as 14:05.
std::string TimeOf(const Copy& copy)
{
    return copy.time.substr(0, 2) + ":" + copy.time.substr(3, 2);
}

std::string Counted(std::size_t count, const char* one, const char* more)
{
    return Tools::Tr(count == 1 ? one : more, count);
}

bool IsDiary(const std::string& file)
{
    const fs::path path(file);
    return SameText(path.begin()->string(), kDiaryFolder) && SameText(path.extension().string(), ".zlv");
}

std::size_t CountDiaries(const std::vector<std::string>& files)
{
    return static_cast<std::size_t>(std::count_if(files.begin(), files.end(), IsDiary));
}

using Bytes = std::optional<std::string>;

Bytes BytesOf(const fs::path& folder, const std::set<std::string>& files, const std::string& file)
{
    return files.contains(file) ? std::optional(ReadFile(folder / file)) : std::nullopt;
}

std::string Value(const Text& text)
{
    return text.empty() ? Tools::Tr("niente") : "«" + ToUtf8(text) + "»";
}

/// What a side of a comparison has to say of a diary that is not whole.
struct DamageTexts {
    const char* missing;
    const char* cut;
};

constexpr DamageTexts kInCopy = {Tools::Mark("  Nella copia il diario non c'è."),
                                 Tools::Mark("  Nella copia il diario è incompleto: %1 giorni su %2.")};
constexpr DamageTexts kNow = {Tools::Mark("  Adesso il diario non c'è."),
                              Tools::Mark("  Adesso il diario è incompleto: %1 giorni su %2.")};

std::string TextOfDamage(const DamageTexts& texts, const Bytes& bytes, int days)
{
    if (!bytes) {
        return Tools::Tr(texts.missing) + "\n";
    }
    return days == kDaysOfDiary ? "" : Tools::Tr(texts.cut, days, kDaysOfDiary) + "\n";
}

std::string TextOfDays(const std::string& file, const Bytes& before, const Bytes& after)
{
    const DiaryDifference difference = CompareDiaries(before.value_or(""), after.value_or(""));
    std::string text =
        file + ": " +
        Counted(difference.days.size(), Tools::Mark("%1 giorno diverso"), Tools::Mark("%1 giorni diversi")) + "\n";
    text += TextOfDamage(kInCopy, before, difference.daysBefore);
    text += TextOfDamage(kNow, after, difference.daysAfter);
    for (const DayDifference& day : difference.days) {
        text += "  " + ToUtf8(day.date) + "\n";
        for (const FieldDifference& field : day.fields) {
            text += Tools::Tr("    %1: nella copia %2, adesso %3", ToUtf8(field.name), Value(field.before),
                              Value(field.after)) +
                    "\n";
        }
    }
    return text;
}

/// Calls `tell` with each file that differs, and what it holds in the copy and now.
template <typename Tell>
void ForEachDifference(const Copy& copy, const fs::path& present, Tell&& tell)
{
    const auto filesOf = [](const std::vector<std::string>& names) {
        return std::set<std::string>(names.begin(), names.end());
    };
    const std::set<std::string> copied = filesOf(FilesBelow(copy.place));
    const std::set<std::string> there = filesOf(WorkspaceFiles(present));
    std::set<std::string> all = copied;
    all.insert(there.begin(), there.end());
    for (const std::string& file : all) {
        const Bytes before = BytesOf(copy.place, copied, file);
        const Bytes after = BytesOf(present, there, file);
        if (before != after) {
            tell(file, before, after);
        }
    }
}

/// A line of cells, none of which may hold what parts them.
std::string Line(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::string cell : cells) {
        std::replace_if(
            cell.begin(), cell.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
        line += cell + "\t";
    }
    line.back() = '\n';
    return line;
}

} // namespace

std::string TextOfList(const std::vector<Copy>& copies)
{
    std::string text;
    for (const Copy& copy : copies) {
        const std::vector<std::string> files = FilesBelow(copy.place);
        std::string number = std::to_string(copy.number);
        number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
        text += number + "  " + DateOf(copy) + "  " + TimeOf(copy) + "  " + copy.folder.string() + " (" +
                Counted(CountDiaries(files), Tools::Mark("%1 diario"), Tools::Mark("%1 diari")) + ")\n";
    }
    return text;
}

std::string TableOfList(const std::vector<Copy>& copies)
{
    std::string text = "number\ttime\tdiaries\tbytes\n";
    for (const Copy& copy : copies) {
        const std::vector<std::string> files = FilesBelow(copy.place);
        std::uintmax_t bytes = 0;
        for (const std::string& file : files) {
            bytes += fs::file_size(copy.place / file);
        }
        std::string time = copy.time;
        std::replace(time.begin(), time.end(), '-', ':');
        text += std::to_string(copy.number) + "\t" + copy.date + "T" + time + "\t" +
                std::to_string(CountDiaries(files)) + "\t" + std::to_string(bytes) + "\n";
    }
    return text;
}

std::string TextOfComparison(const Copy& copy, const fs::path& present)
{
    std::string text;
    ForEachDifference(copy, present, [&](const std::string& file, const Bytes& before, const Bytes& after) {
        if (IsDiary(file)) {
            text += TextOfDays(file, before, after);
        } else {
            text += file + ": " +
                    (!before  ? Tools::Tr("c'è soltanto adesso")
                     : !after ? Tools::Tr("c'è soltanto nella copia")
                              : Tools::Tr("diverso")) +
                    "\n";
        }
    });
    return Tools::Tr("Copia %1 del %2, ore %3, e «%4» adesso:", copy.number, DateOf(copy), TimeOf(copy), present) +
           "\n" + (text.empty() ? Tools::Tr("nessuna differenza.") + "\n" : text);
}

std::string TableOfComparison(const Copy& copy, const fs::path& present)
{
    std::string text = "file\tdate\tfield\tcopy\tnow\n";
    ForEachDifference(copy, present, [&](const std::string& file, const Bytes& before, const Bytes& after) {
        if (!IsDiary(file)) {
            text += Line({file, "", "", before ? "1" : "", after ? "1" : ""});
            return;
        }
        for (const DayDifference& day : CompareDiaries(before.value_or(""), after.value_or("")).days) {
            for (const FieldDifference& field : day.fields) {
                text += Line({file, ToUtf8(day.iso), ToUtf8(field.name), ToUtf8(field.before), ToUtf8(field.after)});
            }
        }
    });
    return text;
}

} // namespace zelvia
