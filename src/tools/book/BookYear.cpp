// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"
#include "diary/CategoryTexts.h"
#include "diary/Module1.h"
#include "diary/RunSearch.h"
#include "tools/book/BookParts.h"
#include "tools/years/DiaryYear.h"
#include "tools/years/Periods.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

namespace
{

SearchTotals TotalsOf(const SearchCriteria& criteria)
{
    SearchTotals totals = FindRuns(Giorni, GiornoCorrente, criteria, SearchTotals()).totals;
    SommaKm(totals);
    TempiTotali(totals);
    MediaTotali(totals);
    return totals;
}

/// Distance, time and average of a search; empty where it has none.
std::vector<std::string> CellsOf(const SearchTotals& totals)
{
    const bool timed = totals.TotOre + totals.TotMinuti + totals.TotSecondi > 0;
    const bool paced = totals.TotMediaMinuti + totals.TotMediaSecondi > 0;
    const long metres = totals.TotKm.value() * 1000L + totals.TotMetri.value();
    return {metres > 0 ? KilometresText(metres) : "", timed ? PlainLine(TimesText(totals)) : "",
            paced ? PlainLine(MeanText(totals)) : ""};
}

BookDots Dots(int year)
{
    BookDots dots{year, {}};
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (HasDistance(day)) {
            dots.days.push_back({day.Data.Month().value(), day.Data.Day().value(),
                                 day.Km.value() * 1000 + day.Metri.value(), SameText(Trim(day.Tipo), "Gara")});
        }
    }
    return dots;
}

/// The kilometres of each period as a bar; the labels of months are short.
ChartData Bars(TextView title, const std::vector<PeriodTotal>& periods, bool months)
{
    ChartData chart;
    chart.TitleText = title;
    chart.SetColumnCount(static_cast<int>(periods.size()));
    chart.SetRowCount(1);
    for (const PeriodTotal& period : periods) {
        constexpr long metresPerKm = 1000;
        const i32 km = period.metres / metresPerKm;
        chart.Column = period.number;
        chart.SetData(PlainText(km));
        chart.SetColumnLabel(months ? Left(Format(period.first, "mmmm"), 3) : PlainText(i32(period.number)));
    }
    return chart;
}

BookTable MonthTable(int year)
{
    BookTable table{{{"Mese"}, {"Corse", true}, {"Km", true}, {"Tempo", true}, {"Media", true}}, {}, {}};
    for (int month = 1; month <= 12; ++month) {
        SearchCriteria criteria;
        const CalendarDate last = CalendarDate(year, 12, 31).PlusMonths(month - 12);
        criteria.GiornoInizio = 1;
        criteria.GiornoFine = last.Day();
        criteria.MeseInizio = criteria.MeseFine = last.Month();
        criteria.AnnoInizio = criteria.AnnoFine = last.Year();
        const SearchTotals totals = TotalsOf(criteria);
        std::vector<std::string> row = {MonthName(month), ToUtf8(PlainText(totals.NumCorse))};
        const auto cells = CellsOf(totals);
        row.insert(row.end(), cells.begin(), cells.end());
        table.rows.push_back(row);
    }
    return table;
}

std::vector<double> Kilometres(const std::vector<long>& metres)
{
    std::vector<double> km(metres.size());
    std::transform(metres.begin(), metres.end(), km.begin(),
                   [](long value) { return static_cast<double>(value) / 1000; });
    return km;
}

/// The year up to its last entry, and the others whole.
BookCurves Curves(const DiaryYear& own, const AllDiaries& others)
{
    const CalendarDate eve = CalendarDate(own.year, 1, 1).PlusDays(-1);
    BookCurves curves{"I chilometri dell'anno", {}};
    curves.curves.push_back({own.year, Kilometres(CurveOf(own.days, own.year, LastKnownDay(own.days, own.year, eve)))});
    for (auto other = others.years.rbegin(); other != others.years.rend(); ++other) {
        if (other->year < own.year) {
            curves.curves.push_back(
                {other->year, Kilometres(CurveOf(other->days, other->year, CalendarDate(other->year, 12, 31)))});
        }
    }
    return curves;
}

} // namespace

std::vector<BookFact> YearFacts()
{
    const SearchTotals totals = TotalsOf({});
    SearchCriteria races;
    races.CercaTipo = "Gara";
    const auto cells = CellsOf(totals);
    std::vector<BookFact> facts = {{"Corse", ToUtf8(PlainText(totals.NumCorse))},
                                   {"Km", cells[0]},
                                   {"Tempo", cells[1]},
                                   {"Media", cells[2]},
                                   {"Gare", ToUtf8(PlainText(TotalsOf(races).NumCorse))}};
    std::erase_if(facts, [](const BookFact& fact) { return fact.value.empty() || fact.value == "0"; });
    return facts;
}

BookChapter YearChapter(int year, const AllDiaries& others)
{
    const DiaryYear own = YearFrom({}, Giorni);
    BookChapter chapter{"anno", "L'anno in breve", {}};
    const BookDots dots = Dots(year);
    if (dots.days.empty()) {
        return chapter;
    }
    chapter.parts.emplace_back(BookFigures{YearFacts()});
    chapter.parts.emplace_back(BookHeading{"giorni", "Giorno per giorno"});
    chapter.parts.emplace_back(dots);
    chapter.parts.emplace_back(BookHeading{"settimane", "Settimane e mesi"});
    chapter.parts.emplace_back(Bars("Km per settimana", WeeksOf(own.days, year), false));
    chapter.parts.emplace_back(Bars("Km per mese", MonthsOf(own.days, year), true));
    chapter.parts.emplace_back(MonthTable(year));
    chapter.parts.emplace_back(BookHeading{"curva", "L'anno che cresce"});
    chapter.parts.emplace_back(Curves(own, others));
    return chapter;
}

} // namespace zelvia
