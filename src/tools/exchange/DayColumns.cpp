// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/DayColumns.h"

#include "core/Conversions.h"
#include "tools/exchange/CellTexts.h"
#include "tools/watch/DayProposal.h"

#include <algorithm>
#include <cstdlib>

namespace zelvia
{
namespace
{

using Column = DayColumn;

/// A time or pace as the page keeps it, with hours; anything else unchanged.
std::string DurationCell(const Text& kept)
{
    const auto seconds = SecondsOf(kept, false);
    if (seconds) {
        return *seconds == 0 ? "" : ClockText(*seconds);
    }
    return ToUtf8(kept);
}

std::string KilometresCell(const RecordGiorno& day)
{
    constexpr int kilometre = 1000;
    const int metres = day.Km.value() * kilometre + day.Metri.value();
    const std::string rest = std::to_string(std::abs(metres) % kilometre);
    return (metres < 0 ? "-" : "") + std::to_string(std::abs(metres) / kilometre) + "." +
           std::string(3 - rest.size(), '0') + rest;
}

std::string CountCell(int number)
{
    return number == 0 ? "" : std::to_string(number);
}

std::string NotesCell(const RecordGiorno& day)
{
    int last = kLastNote;
    while (last >= kFirstNote && day.Note[last].empty()) {
        --last;
    }
    std::string notes;
    for (int i = kFirstNote; i <= last; ++i) {
        notes += (i > kFirstNote ? "\n" : "") + ToUtf8(day.Note[i]);
    }
    return notes;
}

} // namespace

const std::vector<DayColumnRow>& DayColumns()
{
    static const std::vector<DayColumnRow> columns = {
        {Column::Date, "date", "Data"},
        {Column::Route, "route", "Percorso"},
        {Column::LengthClass, "length_class", "Lunghezza"},
        {Column::Km, "km", "Km", true},
        {Column::PaceClass, "pace_class", "Andatura"},
        {Column::Terrain, "terrain", "Terreno"},
        {Column::Type, "type", "Tipo"},
        {Column::Start, "start", "Ora Inizio"},
        {Column::End, "end", "Ora Fine"},
        {Column::Time, "time", "Tempo"},
        {Column::Average, "average", "Media"},
        {Column::Season, "season", "Stagione"},
        {Column::Weather, "weather", "Meteo"},
        {Column::Temperature, "temperature", "Temperatura"},
        {Column::Runners, "runners", "Corridori", true},
        {Column::Weight, "weight", "Peso", true},
        {Column::Repetitions, "repetitions", "Ripetizioni", true},
        {Column::RepetitionDistance, "repetition_distance", "Ripetizioni, metri", true},
        {Column::RepetitionTime, "repetition_time", "Ripetizioni, tempo"},
        {Column::Notes, "notes", "Note"}};
    return columns;
}

std::optional<DayColumn> ColumnOf(std::string_view head)
{
    const Text wanted = FromUtf8(Stripped(head));
    for (const DayColumnRow& row : DayColumns()) {
        if (SameText(wanted, row.name) || SameText(wanted, row.label)) {
            return row.column;
        }
    }
    return std::nullopt;
}

bool HasEntry(const RecordGiorno& day)
{
    RecordGiorno blank;
    blank.NumGiorno = day.NumGiorno;
    blank.Data = day.Data;
    blank.Note[0] = day.Note[0];
    // A day that was only looked at holds these.
    blank.TempoImpiegato = day.TempoImpiegato == "0:00:00" ? day.TempoImpiegato : Text();
    blank.MediaKm = day.MediaKm == "0:00" ? day.MediaKm : Text();
    return day != blank;
}

std::string CellOf(const RecordGiorno& day, DayColumn column)
{
    const bool timed = StartOf(day) != 0 || EndOf(day) != 0;
    switch (column) {
    case Column::Date: return Format(day.Data, "yyyy-mm-dd");
    case Column::Km: return KilometresCell(day);
    case Column::Start: return timed ? ClockText(StartOf(day)) : "";
    case Column::End: return EndOf(day) != 0 ? ClockText(EndOf(day)) : "";
    case Column::Time: return DurationCell(day.TempoImpiegato);
    case Column::Average: return DurationCell(day.MediaKm);
    case Column::Runners: return std::to_string(day.Corridori.value());
    case Column::Weight: return CountCell(day.Peso.value());
    case Column::Repetitions: return CountCell(day.Ripetizioni.value());
    case Column::RepetitionDistance: return CountCell(day.RipetizioniDistanza.value());
    case Column::RepetitionTime: {
        const int seconds = day.RipetizioniQuante.value() * kMinute + day.RipetizioniTempi.value();
        return seconds == 0 ? "" : ClockText(seconds);
    }
    case Column::Notes: return NotesCell(day);
    default: return ToUtf8(day.*ListMember(column));
    }
}

std::vector<DaySplit> SplitsOf(const RecordGiorno& day, int& unreadable)
{
    std::vector<DaySplit> splits;
    for (const Text& line : day.ListaKm) {
        const std::string_view whole = Stripped(line);
        if (whole.empty()) {
            continue;
        }
        const std::size_t blank = std::min(whole.find(' '), whole.size());
        const auto km = WholeNumber(whole.substr(0, blank));
        const auto seconds = SecondsOf(whole.substr(blank), false);
        if (km && seconds) {
            splits.push_back({std::to_string(*km), ClockText(*seconds)});
        } else {
            ++unreadable;
        }
    }
    return splits;
}

Text RecordGiorno::*ListMember(DayColumn column)
{
    switch (column) {
    case Column::Route: return &RecordGiorno::Percorso;
    case Column::LengthClass: return &RecordGiorno::Lunghezza;
    case Column::PaceClass: return &RecordGiorno::Modo;
    case Column::Terrain: return &RecordGiorno::Fondo;
    case Column::Type: return &RecordGiorno::Tipo;
    case Column::Season: return &RecordGiorno::Stagione;
    case Column::Weather: return &RecordGiorno::TempoAtm;
    case Column::Temperature: return &RecordGiorno::Temperatura;
    default: return nullptr;
    }
}

} // namespace zelvia
