// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/IncomingDay.h"

#include "core/Conversions.h"
#include "core/Tr.h"
#include "diary/Fields.h"
#include "tools/copies/SafeFiles.h"
#include "tools/exchange/CellTexts.h"
#include "tools/watch/DayProposal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>

namespace zelvia
{
namespace
{

using Column = DayColumn;

FileFailure NoValue(DayColumn column, const std::string& cell)
{
    return FileFailure(Tools::Tr("«%1» non è un valore di «%2»", cell,
                                 std::string(DayColumns()[static_cast<std::size_t>(column)].name)));
}

template <typename Integer>
void PutNumber(RecordGiorno& day, Integer RecordGiorno::*member, DayColumn column, const std::string& cell)
{
    const NumberRange range = RangeOf(member);
    const auto number = WholeNumber(Stripped(cell));
    if (!number || *number < range.minimum || *number > range.maximum) {
        throw NoValue(column, cell);
    }
    day.*member = *number;
}

/// Kilometres with a decimal point or comma.
void PutKilometres(RecordGiorno& day, const std::string& cell)
{
    std::string digits(Stripped(cell));
    std::replace(digits.begin(), digits.end(), ',', '.');
    double kilometres = 0;
    const auto [end, failed] = std::from_chars(digits.data(), digits.data() + digits.size(), kilometres);
    const double most = RangeOf(&RecordGiorno::Km).maximum + 0.9995;
    if (failed != std::errc() || end != digits.data() + digits.size() || !(kilometres >= 0 && kilometres < most)) {
        throw NoValue(Column::Km, cell);
    }
    constexpr int kilometre = 1000;
    const int metres = static_cast<int>(std::lround(kilometres * kilometre));
    day.Km = metres / kilometre;
    day.Metri = metres % kilometre;
}

void PutRepetitionTime(RecordGiorno& day, const std::string& cell)
{
    const auto seconds = SecondsOf(cell, false);
    if (!seconds || *seconds / kMinute > RangeOf(&RecordGiorno::RipetizioniQuante).maximum) {
        throw NoValue(Column::RepetitionTime, cell);
    }
    day.RipetizioniQuante = *seconds / kMinute;
    day.RipetizioniTempi = *seconds % kMinute;
}

/// The lines of a note, none longer than its box.
std::vector<Text> NoteLines(const std::string& cell)
{
    constexpr std::size_t width = 32;
    std::vector<Text> lines;
    for (std::string_view rest = cell;;) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        Text line = HeldText(rest.substr(0, end > 0 && rest[end - 1] == '\r' ? end - 1 : end));
        while (line.size() > width) {
            const std::size_t blank = line.rfind(' ', width);
            const std::size_t cut = blank == Text::npos || blank == 0 ? width : blank;
            lines.push_back(line.substr(0, cut));
            line.erase(0, cut + (line[cut] == ' ' ? 1 : 0));
        }
        lines.push_back(line);
        if (end == rest.size()) {
            return lines;
        }
        rest.remove_prefix(end + 1);
    }
}

bool PutNotes(RecordGiorno& day, const std::string& cell)
{
    const std::vector<Text> lines = NoteLines(cell);
    for (int i = kFirstNote; i <= kLastNote; ++i) {
        const auto place = static_cast<std::size_t>(i - kFirstNote);
        day.Note[i] = place < lines.size() ? lines[place] : Text();
    }
    return lines.size() <= static_cast<std::size_t>(kLastNote - kFirstNote + 1);
}

/// What the cells say of the times; nothing else than a start, an end or a time changes them.
class IncomingTimes
{
public:
    void Take(DayColumn column, const std::string& cell)
    {
        const auto seconds = SecondsOf(cell, column != Column::Time);
        if (!seconds) {
            throw NoValue(column, cell);
        }
        (column == Column::Start ? start_ : column == Column::End ? end_ : time_) = seconds;
    }

    void PutInto(RecordGiorno& day) const
    {
        if (!start_ && !end_ && !time_) {
            return;
        }
        constexpr int lastEnd = 25 * kMinute * kMinute - 1;
        const int start = start_.value_or(time_ && !end_ ? 0 : StartOf(day));
        const int end = end_ ? *end_ : time_ ? start + *time_ : EndOf(day);
        if (end > lastEnd) {
            throw FileFailure(Tools::Tr("la fine è dopo le 24:59:59"));
        }
        PutTimes(day, start, end);
    }

private:
    std::optional<int> start_;
    std::optional<int> end_;
    std::optional<int> time_;
};

bool PutCell(RecordGiorno& day, IncomingTimes& times, DayColumn column, const std::string& cell)
{
    switch (column) {
    case Column::Km: PutKilometres(day, cell); break;
    case Column::Start:
    case Column::End:
    case Column::Time: times.Take(column, cell); break;
    case Column::Runners: PutNumber(day, &RecordGiorno::Corridori, column, cell); break;
    case Column::Weight: PutNumber(day, &RecordGiorno::Peso, column, cell); break;
    case Column::Repetitions: PutNumber(day, &RecordGiorno::Ripetizioni, column, cell); break;
    case Column::RepetitionDistance: PutNumber(day, &RecordGiorno::RipetizioniDistanza, column, cell); break;
    case Column::RepetitionTime: PutRepetitionTime(day, cell); break;
    case Column::Notes: return PutNotes(day, cell);
    case Column::Date:
    case Column::Average: break; // Worked out.
    default: day.*ListMember(column) = HeldText(cell); break;
    }
    return true;
}

CalendarDate DateOf(const std::string& cell)
{
    const std::string text(Stripped(cell));
    constexpr int firstYear = 1900;
    constexpr int lastYear = 2099;
    const CalendarDate date = TrapValueWith(
        CalendarDate(CalendarDate::kFirstYear, 1, 1),
        [&] { return text.find('/') == std::string::npos ? IsoDate(text) : DateValue(text); },
        [](const ErroreRunTime&) {});
    if (date.Year() < firstYear || date.Year() > lastYear) {
        throw FileFailure(Tools::Tr("«%1» non è una data dal %2 al %3", cell, firstYear, lastYear));
    }
    return date;
}

} // namespace

Text HeldText(std::string_view utf8)
{
    Text text = FromUtf8(utf8);
    std::replace(text.begin(), text.end(), '"', '\'');
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

IncomingDay IncomingOf(const std::vector<std::optional<DayColumn>>& columns, const std::vector<std::string>& cells)
{
    IncomingDay day;
    bool dated = false;
    for (std::size_t i = 0; i < columns.size() && i < cells.size(); ++i) {
        if (!columns[i] || Stripped(cells[i]).empty()) {
            continue;
        }
        if (*columns[i] == Column::Date) {
            day.date = DateOf(cells[i]);
            dated = true;
        } else {
            day.cells.emplace_back(*columns[i], cells[i]);
        }
    }
    if (!dated) {
        throw FileFailure(Tools::Tr("manca la data"));
    }
    return day;
}

bool HoldsSplits(const std::vector<std::vector<std::string>>& rows)
{
    if (rows.empty() || rows.front() != std::vector<std::string>{"date", "km", "time"}) {
        return false;
    }
    std::set<std::string> dates;
    return std::any_of(rows.begin() + 1, rows.end(),
                       [&](const std::vector<std::string>& row) { return !dates.insert(row.front()).second; });
}

IncomingDay IncomingSplit(const std::vector<std::string>& cells)
{
    constexpr int farthest = 100; // What the page takes.
    IncomingDay day = IncomingOf({Column::Date, Column::Km, Column::Time}, cells);
    const auto km = cells.size() > 1 ? WholeNumber(Stripped(cells[1])) : std::nullopt;
    const int seconds = cells.size() > 2 ? SecondsOf(cells[2], false).value_or(0) : 0;
    if (!km || *km < 1 || *km > farthest || seconds == 0) {
        throw FileFailure(Tools::Tr("la riga non dice un chilometro da 1 a 100 e un tempo"));
    }
    day.cells.clear();
    day.splits.push_back({*km, seconds});
    return day;
}

bool PutInto(RecordGiorno& day, const IncomingDay& incoming)
{
    if (!incoming.splits.empty()) {
        PutSplits(day, incoming.splits);
        return true;
    }
    IncomingTimes times;
    bool whole = true;
    for (const auto& [column, cell] : incoming.cells) {
        whole = PutCell(day, times, column, cell) && whole;
    }
    times.PutInto(day);
    return whole;
}

} // namespace zelvia
