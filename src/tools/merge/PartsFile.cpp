// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/merge/PartsFile.h"

#include "diary/CalendarModel.h"
#include "diary/DiaryDifference.h"
#include "diary/FileForms.h"

#include <algorithm>

namespace zelvia
{
namespace
{

constexpr std::size_t kRoutes = 200;
constexpr TextView kNoText = "\"\"";
constexpr TextView kNoNumber = "0";

// Lines of a part.
constexpr std::size_t kRouteName = 0;
constexpr std::size_t kRaceDay = 1;
constexpr std::size_t kRaceMonth = 2;
constexpr std::size_t kRaceYear = 3;

/// The lines of one part of a file.
std::size_t PartLines(FileKind kind, const FileLines& lines)
{
    static const std::size_t routeLines = RoutesForm().size() / kRoutes;
    static const std::size_t raceLines = CalendarForm().size() / Module1::kRaces;
    switch (kind) {
    case FileKind::Diary: return static_cast<std::size_t>(LinesOfDay());
    case FileKind::Routes: return routeLines;
    case FileKind::Races: return raceLines;
    case FileKind::Table: return lines.size();
    case FileKind::List:
    case FileKind::Pointer: break;
    }
    return 1;
}

} // namespace

Text ValueOf(TextView line)
{
    if (line.size() > 1 && line.starts_with('"') && line.ends_with('"')) {
        return Text(line.substr(1, line.size() - 2));
    }
    return Text(line == kNoNumber ? TextView() : line);
}

Text Joined(const FileLines& lines)
{
    Text bytes;
    for (const TextView line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

std::string DateOfRace(const TextView* race)
{
    if (race[kRaceDay] == kNoNumber) {
        return {};
    }
    const auto padded = [](TextView digits, std::size_t width) {
        return std::string(width - std::min(width, digits.size()), '0') + std::string(digits);
    };
    return padded(race[kRaceYear], 4) + "-" + padded(race[kRaceMonth], 2) + "-" + padded(race[kRaceDay], 2);
}

PartsFile::PartsFile(FileKind kind, TextView bytes)
    : kind_(kind), lines_(LinesOf(bytes)), count_(PartLines(kind, lines_))
{
}

bool PartsFile::IsFree(int place) const
{
    const TextView* part = Part(place);
    const auto isBlank = [](TextView line) { return ValueOf(line).empty(); };
    return kind_ == FileKind::Routes  ? part[kRouteName] == kNoText
           : kind_ == FileKind::Races ? std::all_of(part + Numbered(), part + count_, isBlank)
                                      : false;
}

int PartsFile::FreePlace(int place) const
{
    if (IsFree(place)) {
        return place;
    }
    for (int i = 1; i <= Parts(); ++i) {
        if (IsFree(i)) {
            return i;
        }
    }
    return 0;
}

void PartsFile::Put(int place, const TextView* part)
{
    std::copy(part + Numbered(), part + count_, Part(place) + Numbered());
}

void PartsFile::Blank(int place)
{
    static const std::vector<ValueKind> forms[] = {RoutesForm(), CalendarForm()};
    const auto& form = forms[kind_ == FileKind::Routes ? 0 : 1];
    for (std::size_t i = Numbered(); i < count_; ++i) {
        Part(place)[i] = form[i] == ValueKind::Quoted ? kNoText : kNoNumber;
    }
}

} // namespace zelvia
