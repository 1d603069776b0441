// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/AllDiaries.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "core/ValueFile.h"
#include "diary/Fields.h"
#include "diary/Workspace.h"
#include "tools/merge/Conflicts.h"
#include "tools/years/DiaryNames.h"

#include <algorithm>
#include <map>
#include <memory>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

using Days = BoundedArray<RecordGiorno, 0, 366>;

/// Reads a diary into `days`, which all diaries share. Raises what ValueReader raises.
void ReadDiary(const fs::path& file, Days& days)
{
    ValueReader reader(SystemPath(file.string()));
    for (int i = 1; i <= Days::kLast; ++i) {
        VisitDiaryValues(days[i], [&](auto& value) { reader.Input(value); });
    }
}

/// The name of the diary that the program opens at its start.
std::string StartDiary(const fs::path& folder)
{
    const std::string fallback = "prova";
    return TrapValueWith(
        fallback,
        [&] {
            const fs::path file = NativePath(ReadPointer(SystemPath((folder / kStartPointer).string())));
            return DiaryName(file.lexically_relative(folder / kDiaryFolder)).value_or(fallback);
        },
        [](const ErroreRunTime&) {});
}

/// One diary for each year.
class Shelf
{
public:
    explicit Shelf(std::string start) : start_(std::move(start)) {}

    void Put(DiaryYear diary)
    {
        const auto [place, isFirst] = years_.try_emplace(diary.year, diary);
        if (isFirst) {
            return;
        }
        if (Rank(diary) > Rank(place->second)) {
            std::swap(diary, place->second);
        }
        LeaveOut(diary.diary,
                 Tools::Tr("è dell'anno %1 come il diario «%2», che vale", diary.year, place->second.diary));
    }

    void LeaveOut(const std::string& diary, const std::string& why) { leftOut_.push_back({diary, why}); }

    AllDiaries Take()
    {
        AllDiaries all{{}, std::move(leftOut_)};
        for (auto& [year, diary] : years_) {
            all.years.push_back(std::move(diary));
        }
        return all;
    }

private:
    int Rank(const DiaryYear& diary) const
    {
        return diary.diary == start_ ? 2 : diary.diary == std::to_string(diary.year) ? 1 : 0;
    }

    std::string start_;
    std::map<int, DiaryYear> years_;
    std::vector<DiaryLeftOut> leftOut_;
};

void LeaveOutConflicts(const fs::path& folder, const std::string& start, Shelf& shelf)
{
    for (const Conflict& conflict : FindConflicts(folder)) {
        const auto name = DiaryName(fs::path(conflict.file).lexically_relative(kDiaryFolder));
        if (KindOfFile(conflict.original) == FileKind::Diary && name && name != start) {
            shelf.LeaveOut(*name, Tools::Tr("è in conflitto con «%1»: «Due computer», negli strumenti, li unisce",
                                            conflict.original));
        }
    }
}

} // namespace

std::vector<DiaryDay> AllDiaries::Days() const
{
    std::vector<DiaryDay> days;
    for (const DiaryYear& year : years) {
        days.insert(days.end(), year.days.begin(), year.days.end());
    }
    return days;
}

const DiaryYear* AllDiaries::Find(int year) const
{
    const auto found = std::find_if(years.begin(), years.end(), [&](const DiaryYear& one) { return one.year == year; });
    return found == years.end() ? nullptr : &*found;
}

AllDiaries ReadAllDiaries(const fs::path& folder, const std::function<bool(int, int)>& progress)
{
    const fs::path place = fs::canonical(folder);
    const std::string start = StartDiary(place);
    const std::vector<std::string> diaries = DiariesOf(place, start);
    const auto days = std::make_unique<Days>();
    Shelf shelf(start);
    LeaveOutConflicts(place, start, shelf);
    int read = 0;
    for (const std::string& diary : diaries) {
        TrapWith(
            [&] {
                ReadDiary(place / DiaryFile(diary), *days);
                shelf.Put(YearFrom(diary, *days));
            },
            [&](const ErroreRunTime& error) {
                shelf.LeaveOut(diary, Tools::Tr("non si legge per intero («%1»)", ToUtf8(error.Description())));
            });
        ++read;
        if (progress && !progress(read, static_cast<int>(diaries.size()))) {
            break;
        }
    }
    return shelf.Take();
}

} // namespace zelvia
