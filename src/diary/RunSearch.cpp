// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RunSearch.h"

#include "core/Conversions.h"
#include "diary/CategoryStatistics.h"
#include "diary/CategoryTexts.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace zelvia
{
namespace
{

struct Period {
    std::optional<CalendarDate> start;
    std::optional<CalendarDate> end;
};

std::optional<CalendarDate> DateOf(i16 day, i16 month, i16 year)
{
    if (day <= 0) {
        return std::nullopt;
    }
    return DateValue(PlainText(day) + "/" + PlainText(month) + "/" + PlainText(year));
}

bool Fulfils(const RecordGiorno& day, const Statistic& statistic, const Text& sought)
{
    return sought.empty() || SameText(sought, statistic.text(day));
}

bool Fulfils(const RecordGiorno& day, const Statistic& statistic, i16 sought)
{
    return sought == 0 || i32(sought) == statistic.number(day);
}

bool FulfilsAll(const RecordGiorno& day, const SearchCriteria& criteria)
{
    return std::all_of(kAllCategories.begin(), kAllCategories.end(), [&](Categoria category) {
        const Statistic& statistic = StatisticOf(category);
        return std::visit([&](auto sought) { return Fulfils(day, statistic, criteria.*sought); }, statistic.criterion);
    });
}

bool IsSought(const RecordGiorno& day, const SearchCriteria& criteria, const Period& period)
{
    if ((period.start && day.Data < *period.start) || (period.end && day.Data > *period.end)) {
        return false;
    }
    // A day with no distance is not a run.
    return FulfilsAll(day, criteria) && day.Km + day.Metri > 0;
}

/// Overwrites the columns of a line from `column` on, counted from 1; the line keeps its length.
void WriteAt(Text& line, std::size_t column, TextView text)
{
    const std::size_t from = column - 1;
    const std::size_t length = std::min(text.size(), line.size() - from);
    line.replace(from, length, text.substr(0, length));
}

/// Runs a block under the title of its routine; its error is kept. True when there was none.
template <typename Block>
bool Attempt(SearchResult& result, TextView title, Block&& block)
{
    bool passed = true;
    TrapWith(std::forward<Block>(block), [&](const ErroreRunTime& error) {
        passed = false;
        result.errors.push_back({title, error, result.lines.size()});
    });
    return passed;
}

void AddRun(SearchResult& result, const RecordGiorno& day)
{
    SearchTotals& totals = result.totals;
    totals.NumCorse += 1;
    totals.TotKm += i32(day.Km);
    totals.TotMetri += i32(day.Metri);
    Attempt(result, "Somma Tempi - ERRORE : ", [&] { SommaTempi(totals, day.TempoImpiegato); });
    Attempt(result, "Somma Media - ERRORE : ", [&] { SommaMedia(totals, day.MediaKm); });
    result.lines.push_back(RunLine(day, totals.MinutiMedia));
}

} // namespace

Text RunLine(const RecordGiorno& day, i16 averageMinutes)
{
    constexpr std::size_t columns = 43;
    Text line(columns, ' ');
    WriteAt(line, 2, KmText(day));
    WriteAt(line, 11, day.TempoImpiegato);
    WriteAt(line, averageMinutes <= 9 ? 23 : 22, day.MediaKm);
    WriteAt(line, 33, PlainText(day.Data));
    return line;
}

SearchResult FindRuns(const BoundedArray<RecordGiorno, 0, 366>& days, i16 last, const SearchCriteria& criteria,
                      const SearchTotals& totals)
{
    SearchResult result{totals, {}, {}, false};
    result.ended = !Attempt(result, "Ricerca Medie - ERRORE : ", [&] {
        const Period period{DateOf(criteria.GiornoInizio, criteria.MeseInizio, criteria.AnnoInizio),
                            DateOf(criteria.GiornoFine, criteria.MeseFine, criteria.AnnoFine)};
        for (i16 d = 1; d <= last; d += 1) {
            if (IsSought(days[d], criteria, period)) {
                AddRun(result, days[d]);
            }
        }
    });
    return result;
}

} // namespace zelvia
