// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/merge/Merge.h"

#include "core/Conversions.h"
#include "diary/DiaryDifference.h"
#include "diary/FileForms.h"
#include "tools/merge/PartsFile.h"

#include <algorithm>
#include <map>
#include <utility>

namespace zelvia
{
namespace
{

constexpr std::size_t kDays = 366;

// FileLines of a part.
constexpr std::size_t kDayStamp = 1;
constexpr std::size_t kRaceTitle = 4;

struct AnyCase {
    bool operator()(const Text& a, const Text& b) const { return TextCompare(a, b) < 0; }
};

/// The places of the parts by what they are called.
using Places = std::map<Text, int, AnyCase>;

Text NameOfPart(FileKind kind, const TextView* part)
{
    if (kind == FileKind::Races) {
        const std::string date = DateOfRace(part);
        return date.empty() ? ValueOf(part[kRaceTitle]) : date;
    }
    return kind == FileKind::Table ? Text() : ValueOf(*part);
}

/// The parts of a file in their order, those of the same name numbered; of an entry that occurs twice, the first.
std::vector<std::pair<Text, int>> NamedParts(FileKind kind, const PartsFile& file)
{
    std::vector<std::pair<Text, int>> parts;
    std::map<Text, int, AnyCase> counts;
    for (int place = 1; place <= file.Parts(); ++place) {
        if (file.IsFree(place)) {
            continue;
        }
        Text name = NameOfPart(kind, file.Part(place));
        const int count = ++counts[name];
        if (count > 1 && kind == FileKind::List) {
            continue;
        }
        parts.emplace_back(count > 1 ? name + "\n" + std::to_string(count) : name, place);
    }
    return parts;
}

Side SideOf(bool changedHere, bool changedThere)
{
    return changedHere && changedThere ? Side::Both : changedThere ? Side::There : Side::Here;
}

/// Compares files of named parts.
class PartsComparison
{
public:
    PartsComparison(FileKind kind, const std::optional<Text>& base, const Text& here, const Text& there)
        : kind_(kind), hasBase_(base.has_value()), base_(kind, base ? TextView(*base) : TextView()), here_(kind, here),
          there_(kind, there)
    {
        const auto inBase = NamedParts(kind, base_);
        const auto inHere = NamedParts(kind, here_);
        const auto inThere = NamedParts(kind, there_);
        const Places basePlaces(inBase.begin(), inBase.end());
        const Places herePlaces(inHere.begin(), inHere.end());
        const Places therePlaces(inThere.begin(), inThere.end());
        const auto placeIn = [](const Places& places, const Text& name) {
            const auto found = places.find(name);
            return found == places.end() ? 0 : found->second;
        };
        for (const auto& [name, place] : inHere) {
            Compare(name, placeIn(basePlaces, name), place, placeIn(therePlaces, name));
        }
        for (const auto& [name, place] : inThere) {
            if (!herePlaces.contains(name)) {
                Compare(name, placeIn(basePlaces, name), 0, place);
            }
        }
    }

    std::vector<SideChange> changes;

private:
    /// A part of no place is absent.
    bool AreSame(const PartsFile& one, int place, const PartsFile& other, int otherPlace) const
    {
        if (place == 0 || otherPlace == 0) {
            return place == otherPlace;
        }
        const auto from = static_cast<std::ptrdiff_t>(one.Numbered());
        return kind_ == FileKind::List ||
               (one.LinesOfPart() == other.LinesOfPart() &&
                std::equal(one.Part(place) + from, one.Part(place) + one.LinesOfPart(), other.Part(otherPlace) + from));
    }

    void Compare(const Text& name, int base, int here, int there)
    {
        if (AreSame(here_, here, there_, there)) {
            return;
        }
        SideChange change;
        // Without a base what only one side has was added there.
        change.side = SideOf(hasBase_ ? !AreSame(base_, base, here_, here) : here != 0,
                             hasBase_ ? !AreSame(base_, base, there_, there) : there != 0);
        change.here = here;
        change.there = there;
        change.name = name.substr(0, name.find('\n'));
        change.date = kind_ != FileKind::Races ? std::string()
                      : here != 0              ? DateOfRace(here_.Part(here))
                                               : DateOfRace(there_.Part(there));
        change.taken = change.side == Side::There;
        if (kind_ != FileKind::Table) {
            AddFields(change, base);
        }
        changes.push_back(std::move(change));
    }

    void AddFields(SideChange& change, int base) const
    {
        const auto value = [](const PartsFile& file, int place, std::size_t line) {
            return place == 0 ? Text() : ValueOf(file.Part(place)[line]);
        };
        for (std::size_t i = here_.Numbered(); i < here_.LinesOfPart(); ++i) {
            Text here = value(here_, change.here, i);
            Text there = value(there_, change.there, i);
            if (here != there) {
                change.fields.push_back(
                    {static_cast<int>(i), {}, value(base_, base, i), std::move(here), std::move(there)});
            }
        }
    }

    FileKind kind_;
    bool hasBase_;
    PartsFile base_;
    PartsFile here_;
    PartsFile there_;
};

const DayDifference* DayIn(const DiaryDifference& difference, int slot)
{
    const auto day = std::find_if(difference.days.begin(), difference.days.end(),
                                  [slot](const DayDifference& one) { return one.slot == slot; });
    return day == difference.days.end() ? nullptr : &*day;
}

/// What the base holds in a field of a day that differs from it as `day` says, `value` when that field does not.
Text BaseValue(const DayDifference* day, const Text& field, const Text& value)
{
    if (day != nullptr) {
        for (const FieldDifference& one : day->fields) {
            if (one.name == field) {
                return one.before;
            }
        }
    }
    return value;
}

/// 2026-03-01 of the line #2026-03-01#, else what the day is called.
std::string DateOfDay(TextView line, const Text& name)
{
    return line.size() == 12 ? std::string(line.substr(1, 10)) : name;
}

std::vector<SideChange> CompareDays(const std::optional<Text>& base, const Text& here, const Text& there)
{
    const PartsFile days(FileKind::Diary, here);
    const DiaryDifference sinceHere = base ? CompareDiaries(*base, here) : DiaryDifference();
    const DiaryDifference sinceThere = base ? CompareDiaries(*base, there) : DiaryDifference();
    std::vector<SideChange> changes;
    for (const DayDifference& day : CompareDiaries(here, there).days) {
        const DayDifference* const dayHere = DayIn(sinceHere, day.slot);
        const DayDifference* const dayThere = DayIn(sinceThere, day.slot);
        SideChange change;
        change.side = base ? SideOf(dayHere != nullptr, dayThere != nullptr) : Side::Both;
        change.here = change.there = day.slot;
        change.name = day.date;
        change.date = DateOfDay(days.Part(day.slot)[kDayStamp], day.date);
        change.taken = change.side == Side::There;
        for (const FieldDifference& field : day.fields) {
            change.fields.push_back({0, field.name, base ? BaseValue(dayHere, field.name, field.before) : Text(),
                                     field.before, field.after});
        }
        changes.push_back(std::move(change));
    }
    return changes;
}

/// What has a place here: it is replaced or, when it is gone there, removed.
void PutThoseHere(FileKind kind, PartsFile& file, const PartsFile& other, const std::vector<SideChange>& changes)
{
    // From the last on, so that the places of those before it stay.
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        if (!change->taken || change->here == 0) {
            continue;
        }
        if (change->there != 0) {
            file.Put(change->here, other.Part(change->there));
        } else if (kind == FileKind::List) {
            file.Erase(change->here);
        } else {
            file.Blank(change->here);
        }
    }
}

void AddThoseThere(FileKind kind, PartsFile& file, const PartsFile& other, std::vector<SideChange>& changes)
{
    for (SideChange& change : changes) {
        if (!change.taken || change.here != 0) {
            continue;
        }
        const TextView* const part = other.Part(change.there);
        if (kind == FileKind::List) {
            file.Append(*part);
        } else if (const int place = file.FreePlace(change.there); place != 0) {
            file.Put(place, part);
        } else {
            change.taken = false;
        }
    }
}

/// How far two versions are from each other.
std::size_t Distance(FileKind kind, const Text& one, const Text& other)
{
    if (one == other) {
        return 0;
    }
    if (kind != FileKind::Table) {
        return CompareSides(kind, std::nullopt, one, other).size();
    }
    const FileLines lines = LinesOf(one);
    const FileLines others = LinesOf(other);
    const std::size_t common = std::min(lines.size(), others.size());
    std::size_t distance = std::max(lines.size(), others.size()) - common;
    for (std::size_t i = 0; i < common; ++i) {
        distance += lines[i] != others[i] ? 1U : 0U;
    }
    return distance;
}

} // namespace

bool IsWhole(FileKind kind, TextView bytes)
{
    const std::size_t count = LinesOf(bytes).size();
    switch (kind) {
    case FileKind::Diary: return count == kDays * static_cast<std::size_t>(LinesOfDay());
    case FileKind::Routes: return count == RoutesForm().size();
    case FileKind::Races: return count == CalendarForm().size();
    case FileKind::Table: return count == TableForm().size();
    case FileKind::List:
    case FileKind::Pointer: break;
    }
    return true;
}

int YearOfDiary(TextView bytes)
{
    const PartsFile days(FileKind::Diary, bytes);
    std::map<std::string, int> counts;
    for (int slot = 1; slot <= days.Parts(); ++slot) {
        ++counts[DateOfDay(days.Part(slot)[kDayStamp], {}).substr(0, 4)];
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? 0 : static_cast<int>(Val(most->first));
}

std::vector<SideChange> CompareSides(FileKind kind, const std::optional<Text>& base, const Text& here,
                                     const Text& there)
{
    switch (kind) {
    case FileKind::Diary: return CompareDays(base, here, there);
    // The path of a diary's active table is each computer's own.
    case FileKind::Pointer: return {};
    default: return PartsComparison(kind, base, here, there).changes;
    }
}

Text MergedFile(FileKind kind, const std::optional<Text>& base, const Text& here, const Text& there,
                std::vector<SideChange>& changes)
{
    const bool all = std::all_of(changes.begin(), changes.end(), [](const SideChange& one) { return one.taken; });
    const bool none = std::none_of(changes.begin(), changes.end(), [](const SideChange& one) { return one.taken; });
    if (none) {
        return here;
    }
    if (all && (kind == FileKind::Table || (base && LinesOf(*base) == LinesOf(here)))) {
        return Joined(LinesOf(there));
    }
    PartsFile file(kind, here);
    const PartsFile other(kind, there);
    PutThoseHere(kind, file, other, changes);
    AddThoseThere(kind, file, other, changes);
    return Joined(file.AllLines());
}

std::optional<std::size_t> FindBase(FileKind kind, const std::vector<Text>& copies, const Text& here, const Text& there)
{
    std::optional<std::size_t> nearest[2];
    std::size_t least[2] = {};
    for (std::size_t i = 0; i < copies.size(); ++i) {
        if (!IsWhole(kind, copies[i])) {
            continue;
        }
        for (std::size_t side = 0; side < 2; ++side) {
            const std::size_t distance = Distance(kind, copies[i], side == 0 ? here : there);
            if (!nearest[side] || distance < least[side]) {
                nearest[side] = i;
                least[side] = distance;
            }
        }
    }
    return std::min(nearest[0], nearest[1]);
}

} // namespace zelvia
