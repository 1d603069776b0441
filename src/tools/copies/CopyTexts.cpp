// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/CopyTexts.h"

#include "core/Conversions.h"
#include "diary/DiaryDifference.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>
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
    return std::to_string(count) + " " + (count == 1 ? one : more);
}

bool IsDiary(const std::string& file)
{
    const fs::path path(file);
    return SameText(path.begin()->string(), kDiaryFolder) && SameText(path.extension().string(), ".zlv");
}

std::optional<std::string> BytesOf(const fs::path& folder, const std::set<std::string>& files, const std::string& file)
{
    return files.contains(file) ? std::optional(ReadFile(folder / file)) : std::nullopt;
}

std::string Value(const Text& text)
{
    return text.empty() ? "niente" : "«" + ToUtf8(text) + "»";
}

std::string TextOfDamage(const char* which, const std::optional<std::string>& bytes, int days)
{
    if (!bytes) {
        return std::string("  ") + which + " non c'è.\n";
    }
    return days == kDaysOfDiary ? ""
                                : std::string("  ") + which + " è incompleto: " + std::to_string(days) + " giorni su " +
                                      std::to_string(kDaysOfDiary) + ".\n";
}

std::string TextOfDays(const std::string& file, const std::optional<std::string>& before,
                       const std::optional<std::string>& after)
{
    const DiaryDifference difference = CompareDiaries(before.value_or(""), after.value_or(""));
    std::string text = file + ": " + Counted(difference.days.size(), "giorno diverso", "giorni diversi") + "\n";
    text += TextOfDamage("Nella copia il diario", before, difference.daysBefore);
    text += TextOfDamage("Adesso il diario", after, difference.daysAfter);
    for (const DayDifference& day : difference.days) {
        text += "  " + ToUtf8(day.date) + "\n";
        for (const FieldDifference& field : day.fields) {
            text += "    " + ToUtf8(field.name) + ": nella copia " + Value(field.before) + ", adesso " +
                    Value(field.after) + "\n";
        }
    }
    return text;
}

} // namespace

std::string TextOfList(const std::vector<Copy>& copies)
{
    std::string text;
    for (const Copy& copy : copies) {
        const std::vector<std::string> files = FilesBelow(copy.place);
        const auto diaries = static_cast<std::size_t>(std::count_if(files.begin(), files.end(), IsDiary));
        std::string number = std::to_string(copy.number);
        number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
        text += number + "  " + DateOf(copy) + "  " + TimeOf(copy) + "  " + copy.folder.string() + " (" +
                Counted(diaries, "diario", "diari") + ")\n";
    }
    return text;
}

std::string TextOfComparison(const Copy& copy, const fs::path& present)
{
    const auto filesOf = [](const std::vector<std::string>& names) {
        return std::set<std::string>(names.begin(), names.end());
    };
    const std::set<std::string> copied = filesOf(FilesBelow(copy.place));
    const std::set<std::string> there = filesOf(WorkspaceFiles(present));
    std::set<std::string> all = copied;
    all.insert(there.begin(), there.end());
    std::string text;
    for (const std::string& file : all) {
        const auto before = BytesOf(copy.place, copied, file);
        const auto after = BytesOf(present, there, file);
        if (before == after) {
            continue;
        }
        if (IsDiary(file)) {
            text += TextOfDays(file, before, after);
        } else {
            text += file + ": " +
                    (!before  ? "c'è soltanto adesso"
                     : !after ? "c'è soltanto nella copia"
                              : "diverso") +
                    "\n";
        }
    }
    return "Copia " + std::to_string(copy.number) + " del " + DateOf(copy) + ", ore " + TimeOf(copy) + ", e «" +
           present.string() + "» adesso:\n" + (text.empty() ? "nessuna differenza.\n" : text);
}

} // namespace zelvia
