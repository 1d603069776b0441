// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"
#include "diary/CategoryTexts.h"
#include "diary/Module1.h"
#include "tools/book/BookParts.h"
#include "tools/exchange/DayColumns.h"

#include <sstream>

namespace zelvia
{

using namespace Module1;

namespace
{

using Column = DayColumn;

/// A cell of the day as the page writes it.
std::string ValueOf(const RecordGiorno& day, Column column)
{
    const std::string cell = CellOf(day, column);
    switch (column) {
    case Column::Km: return HasDistance(day) ? KilometresText(day.Km.value() * 1000L + day.Metri.value()) : "";
    case Column::Average: return cell.empty() ? "" : PlainLine(day.MediaKm);
    case Column::Runners: return cell == "1" ? "" : cell;
    case Column::Repetitions: return cell.empty() ? "" : PlainLine(RepetitionsText(day));
    // They are part of the repetitions.
    case Column::RepetitionDistance:
    case Column::RepetitionTime: return "";
    default: return PlainLine(FromUtf8(cell));
    }
}

void AddFact(const RecordGiorno& day, const DayColumnRow& row, BookDay& entry)
{
    if (row.column == Column::Date || row.column == Column::Notes) {
        return;
    }
    const std::string value = ValueOf(day, row.column);
    if (!value.empty()) {
        const bool inHead = row.column == Column::Km || row.column == Column::Time || row.column == Column::Average;
        (inHead ? entry.head : entry.fields).push_back({std::string(row.label), value});
    }
}

std::vector<std::string> SplitLines(const RecordGiorno& day)
{
    std::vector<std::string> lines;
    for (const Text& line : day.ListaKm) {
        // The columns of the page are set apart with blanks.
        std::istringstream words(PlainLine(line));
        std::string text;
        for (std::string word; words >> word;) {
            text += (text.empty() ? "" : " ") + word;
        }
        if (!text.empty()) {
            lines.push_back(text);
        }
    }
    return lines;
}

std::vector<std::string> NoteLines(const RecordGiorno& day)
{
    std::vector<std::string> lines;
    for (int i = kFirstNote; i <= kLastNote; ++i) {
        lines.push_back(PlainLine(day.Note[i]));
    }
    while (!lines.empty() && lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

BookDay EntryOf(const RecordGiorno& day)
{
    BookDay entry{"g" + Format(day.Data, "yyyy-mm-dd"), day.Data, SameText(Trim(day.Tipo), "Gara"), {}, {}, {}, {}};
    for (const DayColumnRow& row : DayColumns()) {
        AddFact(day, row, entry);
    }
    entry.splits = SplitLines(day);
    entry.notes = NoteLines(day);
    return entry;
}

} // namespace

BookChapter DaysChapter()
{
    BookChapter chapter{"diario", "Il diario", {}};
    int month = 0;
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (!HasEntry(day)) {
            continue;
        }
        if (day.Data.Month() != month) {
            month = day.Data.Month().value();
            chapter.parts.emplace_back(BookHeading{"mese" + std::to_string(month), MonthName(month)});
        }
        chapter.parts.emplace_back(EntryOf(day));
    }
    return chapter;
}

} // namespace zelvia
