// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/CalendarDates.h"
#include "diary/CalendarModel.h"
#include "diary/CategoryStatistics.h"
#include "diary/ChartModel.h"
#include "diary/ListaOrdinata.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/RunSearch.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "diary/TimeAndPace.h"
#include "diary/Workspace.h"
#include "tools/book/BookParts.h"
#include "tools/exchange/Calendar.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr int kPerMinute = 60;

std::string DateText(CalendarDate date)
{
    return ToUtf8(PlainText(date));
}

/// "8/2"; the year is that of the book.
std::string DayAndMonth(CalendarDate date)
{
    return ToUtf8(Format(date, "d/m"));
}

/// A race with its date, to be sorted by it.
struct Race {
    CalendarDate date;
    std::vector<std::string> cells;
};

std::optional<CalendarDate> DateOfRace(int row)
{
    return TrapValueWith(
        std::optional<CalendarDate>(),
        [&] {
            return std::optional(CalendarDate(AnnoGara[row].value(), static_cast<unsigned>(MeseGara[row].value()),
                                              static_cast<unsigned>(GiornoGara[row].value())));
        },
        [](const ErroreRunTime&) {});
}

std::string PaceText(i32 metres, i32 seconds)
{
    if (metres <= 0 || seconds <= 0) {
        return {};
    }
    const auto pace = PaceOf(metres, seconds);
    return pace ? ToUtf8(PlainText(pace->minutes) + ":" + Format(i32(pace->seconds), "00")) : "";
}

/// "12° su 340", "3° S50".
std::string PlacingText(i32 place, const std::string& behind)
{
    return place > 0 ? ToUtf8(PlainText(place)) + "°" + behind : "";
}

Race RaceOf(i16 row, CalendarDate date)
{
    const RaceTexts texts = RaceTextsOf(row);
    const i32 metres = i32(KmGara[row]) * 1000 + i32(MetriGara[row]);
    const i32 seconds = (i32(OreGara[row]) * kPerMinute + i32(MinutiGara[row])) * kPerMinute + i32(SecondiGara[row]);
    const std::string place = PlainLine(texts.place);
    return {date,
            {DayAndMonth(date), PlainLine(texts.name) + (place.empty() ? "" : ", " + place),
             metres > 0 ? KilometresText(metres.value()) : "", seconds > 0 ? PlainLine(texts.time) : "",
             PaceText(metres, seconds),
             PlacingText(Risultato[row], Partecipanti[row] > 0 ? " su " + PlainLine(texts.runners) : ""),
             PlacingText(RisultatoCat[row], " " + PlainLine(texts.category))}};
}

/// A race that was run but is not in the calendar.
Race RaceOf(const RecordGiorno& day)
{
    const int metres = day.Km.value() * 1000 + day.Metri.value();
    return {day.Data,
            {DayAndMonth(day.Data), PlainLine(day.Percorso), metres > 0 ? KilometresText(metres) : "",
             PlainLine(day.TempoImpiegato), PlainLine(day.MediaKm), "", ""}};
}

/// The routes of the year, each as it was first spelt, in order.
std::vector<Text> RoutesOfYear()
{
    std::vector<Text> routes;
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        const Text& route = Giorni[i].Percorso;
        if (CampoNonVuoto(route) && !Holds(routes, route)) {
            routes.push_back(route);
        }
    }
    std::sort(routes.begin(), routes.end(), [](const Text& a, const Text& b) { return TextCompare(a, b) < 0; });
    return routes;
}

/// The runs of a route by their times.
BookTable Ranking(const Text& route)
{
    // With its lists it is too large for the stack of a thread.
    const auto list = std::make_unique<ListaOrdinata>();
    list->CreaLista();
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (SameText(day.Percorso, route)) {
            AddRunTo(*list, day.NumGiorno, day.TempoImpiegato, day.MediaKm, day.Data);
        }
    }
    list->Ordina();
    BookTable table{{{"", true}, {"Tempo", true}, {"Media", true}, {"Data", true}}, {}, 0};
    list->NuovaLista([&](TextView place, TextView time, TextView average, TextView date) {
        table.rows.push_back({PlainLine(place), PlainLine(time), PlainLine(average), PlainLine(date)});
    });
    list->RiempiLista();
    return table;
}

/// How often and how far a route was run, and its length where that is described.
std::string RouteText(const Text& route)
{
    SearchCriteria criteria;
    criteria.CercaPercorso = route;
    SearchTotals totals = FindRuns(Giorni, GiornoCorrente, criteria, SearchTotals()).totals;
    SommaKm(totals);
    std::string text = PlainLine(PlainText(totals.NumCorse)) + (totals.NumCorse == 1 ? " corsa, " : " corse, ") +
                       KilometresText(totals.TotKm.value() * 1000L + totals.TotMetri.value()) + " km";
    const auto place = RoutePlace(route);
    if (place && *place > 0 && DistanzePercorso[*place] > 0) {
        text += "; il percorso è lungo " + KilometresText(DistanzePercorso[*place].value()) + " km";
    }
    return text + ".";
}

BookTable CountTable(const Statistic& statistic)
{
    BookTable table{{{ToUtf8(statistic.title)}, {"Giorni", true}}, {}, {}};
    for (int i = 1; i <= kMaxCategories && ContaCategoria[i] > 0; ++i) {
        table.rows.push_back({PlainLine(statistic.number != nullptr ? PlainText(ValoreCategoria[i]) : NomeCategoria[i]),
                              ToUtf8(PlainText(ContaCategoria[i]))});
    }
    return table;
}

/// A chart of the values that were counted last, or a list where they would not be readable.
void AddCounts(BookChapter& chapter, const Statistic& statistic)
{
    constexpr std::size_t mostBars = 14;
    BookTable table = CountTable(statistic);
    if (table.rows.empty()) {
        return;
    }
    chapter.parts.emplace_back(
        BookHeading{"statistica" + std::to_string(chapter.parts.size()), ToUtf8(statistic.title)});
    if (table.rows.size() > mostBars) {
        chapter.parts.emplace_back(std::move(table));
    } else {
        chapter.parts.emplace_back(CategoryChart({}, NomeCategoria, ContaCategoria, ValoreCategoria));
    }
}

/// The pace of the runs that have one, in their order; so many have no labels.
ChartData YearsPace()
{
    const PaceTable all = FindRuns(Giorni, GiornoCorrente, {}, SearchTotals()).totals.Medie;
    PaceTable paces;
    std::copy_if(all.begin(), all.end(), paces.begin() + 1, [](f32 pace) { return pace > 0; });
    ChartData chart = PaceChart(paces);
    chart.TitleText.clear();
    for (chart.Row = 1; chart.Row <= chart.RowCount(); ++chart.Row) {
        chart.SetRowLabel({});
    }
    return chart;
}

} // namespace

BookChapter RacesChapter(int year, Book& book)
{
    AzzeraCalendario();
    ReadOrWarn(book, Tools::Tr("Il calendario delle gare non si legge per intero"), LeggiCalendario);
    std::vector<Race> races;
    for (i16 row = 1; row <= RaceValues<i16>::kLast; row += 1) {
        const auto date = GiornoGara[row] > 0 ? DateOfRace(row.value()) : std::nullopt;
        if (date && date->Year() == year) {
            races.push_back(RaceOf(row, *date));
        }
    }
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (SameText(Trim(day.Tipo), "Gara") && RaceOnDate(day.Data.Day(), day.Data.Month(), day.Data.Year()) == 0) {
            races.push_back(RaceOf(day));
        }
    }
    std::stable_sort(races.begin(), races.end(), [](const Race& a, const Race& b) { return a.date < b.date; });
    BookChapter chapter{"gare", "Le gare", {}};
    BookTable table{
        {{"Data"}, {"Gara"}, {"Km", true}, {"Tempo", true}, {"Media", true}, {"Risultato"}, {"Categoria"}}, {}, {}};
    for (const Race& race : races) {
        table.rows.push_back(race.cells);
    }
    if (!races.empty()) {
        chapter.parts.emplace_back(std::move(table));
    }
    return chapter;
}

BookChapter RoutesChapter(Book& book)
{
    AzzeraPercorsi();
    ReadOrWarn(book, Tools::Tr("Le descrizioni dei percorsi non si leggono per intero"), CaricaPercorsi);
    BookChapter chapter{"percorsi", "I percorsi", {}};
    for (const Text& route : RoutesOfYear()) {
        chapter.parts.emplace_back(BookHeading{"percorso" + std::to_string(chapter.parts.size()), PlainLine(route)});
        chapter.parts.emplace_back(BookParagraph{RouteText(route)});
        BookTable ranking;
        if (ReadOrWarn(book, Tools::Tr("I tempi di «%1» non si leggono per intero", PlainLine(route)),
                       [&] { ranking = Ranking(route); }) &&
            !ranking.rows.empty()) {
            chapter.parts.emplace_back(std::move(ranking));
        }
    }
    return chapter;
}

BookChapter StatisticsChapter(Book& book)
{
    BookChapter chapter{"statistiche", "Le statistiche", {}};
    for (const zelvia::Categoria category : kAllCategories) {
        const Statistic& statistic = StatisticOf(category);
        ClearStatistic();
        const std::string what = Tools::Tr("La statistica «%1» non si può fare", ToUtf8(statistic.title));
        if (ReadOrWarn(book, what, [&] { Trap(kBareTitle, [&] { CountValues(statistic); }); })) {
            AddCounts(chapter, statistic);
        }
    }
    const ChartData pace = YearsPace();
    if (pace.RowCount() > 1) {
        chapter.parts.emplace_back(BookHeading{"medie", "Media al km, corsa per corsa"});
        chapter.parts.emplace_back(pace);
    }
    return chapter;
}

BookChapter TablesChapter(Book& book)
{
    BookChapter chapter{"tabelle", "Le tabelle di allenamento", {}};
    for (const Text& file : FilesIn(CartellaDiario)) {
        if (!SameText(Right(file, 4), ".tab")) {
            continue;
        }
        const Text path = CartellaDiario + "\\" + file;
        const std::string name = PlainLine(NomeSenzaCartella(path));
        AzzeraTabella();
        ReadOrWarn(book, Tools::Tr("La tabella «%1» non si legge per intero", name), [&] { LeggiTabella(path); });
        BookTable table{{{"Data", true}, {"Allenamento"}}, {}, {}};
        for (const CalendarEvent& event : PlanEvents(name)) {
            table.rows.push_back({DateText(event.date), event.summary});
        }
        if (!table.rows.empty()) {
            chapter.parts.emplace_back(BookHeading{"tabella" + std::to_string(chapter.parts.size()), name});
            chapter.parts.emplace_back(std::move(table));
        }
    }
    return chapter;
}

} // namespace zelvia
