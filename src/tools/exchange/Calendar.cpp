// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/Calendar.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"
#include "diary/TableModel.h"
#include "diary/TimeAndPace.h"

#include <cstdlib>
#include <libical/ical.h>
#include <memory>
#include <optional>

namespace zelvia
{
namespace
{

using namespace Module1;

using Component = std::unique_ptr<icalcomponent, decltype([](icalcomponent* part) { icalcomponent_free(part); })>;

/// A text of a calendar holds no control character but the end of a line.
std::string Plain(std::string text)
{
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n'; });
    return text;
}

icaltimetype DayOf(CalendarDate date)
{
    icaltimetype day = icaltime_null_date();
    day.year = date.Year().value();
    day.month = date.Month().value();
    day.day = date.Day().value();
    return day;
}

/// An event of a whole day, owned by the caller.
icalcomponent* EventOf(const CalendarEvent& event, icaltimetype stamp)
{
    icalcomponent* part = icalcomponent_new_vevent();
    const auto add = [part](icalproperty* property) { icalcomponent_add_property(part, property); };
    const auto addText = [&add](icalproperty* (*make)(const char*), const std::string& text) {
        if (!text.empty()) {
            add(make(Plain(text).c_str()));
        }
    };
    addText(icalproperty_new_uid, event.uid);
    add(icalproperty_new_dtstamp(stamp));
    add(icalproperty_new_dtstart(DayOf(event.date)));
    add(icalproperty_new_dtend(DayOf(event.date.PlusDays(1))));
    addText(icalproperty_new_summary, event.summary);
    addText(icalproperty_new_location, event.place);
    addText(icalproperty_new_description, event.description);
    addText(icalproperty_new_categories, event.category);
    add(icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT));
    return part;
}

/// Adds a part after a comma.
void Append(std::string& list, const std::string& part)
{
    list += list.empty() || part.empty() ? "" : ", ";
    list += part;
}

std::string Kilometres(i32 km, i32 metres)
{
    return km == 0 && metres == 0 ? "" : Format(km, "0") + "," + Format(metres, "000") + " km";
}

std::string TimeOf(i32 hours, i32 minutes, i32 seconds)
{
    return hours == 0 && minutes == 0 && seconds == 0 ? "" : TimeText({hours, minutes, seconds});
}

std::optional<CalendarDate> DateOfRace(int row)
{
    try {
        return CalendarDate(AnnoGara[row].value(), static_cast<unsigned>(MeseGara[row].value()),
                            static_cast<unsigned>(GiornoGara[row].value()));
    } catch (const ErroreRunTime&) {
        return std::nullopt;
    }
}

std::string ResultOf(int row)
{
    std::string result;
    Append(result, Kilometres(i32(KmGara[row]), i32(MetriGara[row])));
    Append(result, TimeOf(i32(OreGara[row]), i32(MinutiGara[row]), i32(SecondiGara[row])));
    if (Risultato[row] > 0) {
        const std::string of = Partecipanti[row] > 0 ? " su " + PlainText(Partecipanti[row]) : "";
        Append(result, PlainText(Risultato[row]) + "º" + of);
    }
    if (RisultatoCat[row] > 0) {
        Append(result, PlainText(RisultatoCat[row]) + "º " + ToUtf8(Categoria[row]));
    }
    return result;
}

std::string DemandsOf(int row)
{
    std::string demands;
    Append(demands, Kilometres(i32(TabKm[row]), i32(TabMetri[row])));
    Append(demands, TimeOf(i32(TabOre[row]), i32(TabMinuti[row]), i32(TabSecondi[row])));
    if (TabMediaMinuti[row] != 0 || TabMediaSecondi[row] != 0) {
        Append(demands, PlainText(TabMediaMinuti[row]) + ":" + Format(TabMediaSecondi[row], "00") + " al km");
    }
    Append(demands, ToUtf8(TabAndatura[row]));
    Append(demands, ToUtf8(TabFondo[row]));
    if (TabRipetVolte[row] != 0) {
        Append(demands, PlainText(TabRipetVolte[row]) + " x " + PlainText(TabRipetDistanza[row]) + " m @ " +
                            PlainText(TabRipetQuante[row]) + ":" + Format(TabRipetTempi[row], "00"));
    }
    return demands;
}

} // namespace

std::string ICalendar(const std::vector<CalendarEvent>& events, const std::string& stamp)
{
    const Component calendar(icalcomponent_new_vcalendar());
    const auto add = [&](icalproperty* property) { icalcomponent_add_property(calendar.get(), property); };
    add(icalproperty_new_version("2.0"));
    add(icalproperty_new_prodid("-//Zelvia//Zelvia//IT"));
    add(icalproperty_new_calscale("GREGORIAN"));
    for (const CalendarEvent& event : events) {
        icalcomponent_add_component(calendar.get(), EventOf(event, icaltime_from_string(stamp.c_str())));
    }
    const std::unique_ptr<char, decltype([](char* text) { std::free(text); })> text(
        icalcomponent_as_ical_string_r(calendar.get()));
    return text.get();
}

std::vector<CalendarEvent> RaceEvents()
{
    std::vector<CalendarEvent> events;
    for (int row = 1; row <= RaceValues<i16>::kLast; ++row) {
        const auto date = GiornoGara[row] > 0 ? DateOfRace(row) : std::nullopt;
        if (date) {
            events.push_back({"gara-" + std::to_string(row) + "-" + Format(*date, "yyyymmdd") + "@zelvia", *date,
                              Gara[row].empty() ? "Gara" : ToUtf8(Gara[row]), ToUtf8(Localita[row]), ResultOf(row),
                              "Gara"});
        }
    }
    return events;
}

std::vector<CalendarEvent> PlanEvents(const std::string& tableName)
{
    std::vector<CalendarEvent> events;
    for (int row = 1; row <= PlanColumn<i16>::kLast; ++row) {
        const std::string demands = DemandsOf(row);
        if (!demands.empty()) {
            const CalendarDate date = TabDataInizio.PlusDays(row - 1);
            events.push_back({"tabella-" + std::to_string(row) + "-" + Format(date, "yyyymmdd") + "@zelvia", date,
                              demands, "", "Tabella " + tableName + ", giorno " + std::to_string(row), "Allenamento"});
        }
    }
    return events;
}

} // namespace zelvia
