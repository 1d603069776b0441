// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/DiaryYear.h"

#include "core/Conversions.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace zelvia
{
namespace
{

DiaryDay DayFrom(CalendarDate date, const RecordGiorno& record)
{
    constexpr int perKm = 1000;
    const auto above0 = [](i16 number) { return std::max<int>(number.value(), 0); };
    return {date,
            Trim(record.Percorso),
            above0(record.Km) * perKm + above0(record.Metri),
            SecondsOf(record.TempoImpiegato),
            above0(record.Peso),
            CampoNonVuoto(record.Tipo),
            SameText(Trim(record.Tipo), "Gara")};
}

bool HasFigures(const DiaryDay& day)
{
    return day.run || day.metres > 0 || day.seconds > 0 || day.kilograms > 0;
}

} // namespace

int YearOf(const BoundedArray<RecordGiorno, 0, 366>& days)
{
    std::map<int, int> counts;
    for (int i = 1; i <= 366; ++i) {
        ++counts[days[i].Data.Year().value()];
    }
    int year = 0;
    for (const auto& [candidate, count] : counts) {
        year = count > counts[year] ? candidate : year;
    }
    return year;
}

DiaryYear YearFrom(std::string diary, const BoundedArray<RecordGiorno, 0, 366>& days)
{
    DiaryYear year{YearOf(days), std::move(diary), {}};
    const CalendarDate last(year.year, 12, 31);
    CalendarDate date(year.year, 1, 1);
    for (int i = 1; i <= last.DayOfYear().value(); ++i) {
        DiaryDay day = DayFrom(date, days[i]);
        if (HasFigures(day)) {
            year.days.push_back(std::move(day));
        }
        date = i < last.DayOfYear().value() ? date.PlusDays(1) : date;
    }
    return year;
}

int SecondsOf(TextView time)
{
    constexpr int perUnit = 60;
    constexpr int parts = 3;
    int seconds = 0;
    const char* const end = time.data() + time.size();
    const char* place = time.data();
    for (int part = 0; part < parts; ++part) {
        unsigned short number = 0; // No minus sign.
        const auto [next, failed] = std::from_chars(place, end, number);
        const bool last = part + 1 == parts;
        if (failed != std::errc() || (last ? next != end : next == end || *next != ':')) {
            return 0;
        }
        seconds = seconds * perUnit + number;
        place = next + (last ? 0 : 1);
    }
    return seconds;
}

} // namespace zelvia
