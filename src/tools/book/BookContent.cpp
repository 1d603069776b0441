// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookContent.h"

#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "diary/Module1.h"
#include "tools/book/BookParts.h"
#include "tools/exchange/DayColumns.h"
#include "tools/years/DiaryYear.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

namespace
{

/// Gives each day the date of its place, as the page does, and leaves out place 366 of a common year.
void SetDates(int year)
{
    const CalendarDate newYear(year, 1, 1);
    GiornoCorrente = CalendarDate(year, 12, 31).DayOfYear();
    for (i16 i = 1; i <= GiornoCorrente; i += 1) {
        Giorni[i].NumGiorno = i;
        Giorni[i].Data = newYear.PlusDays(i.value() - 1);
    }
}

} // namespace

std::string DayTitle(const BookDay& day)
{
    return ToUtf8(Format(day.date, "dddd d mmmm yyyy"));
}

std::string PlainLine(TextView text)
{
    Text line;
    for (const char c : text) {
        const char32_t code = CodePointOf(static_cast<unsigned char>(c));
        const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
        line += control ? ' ' : c;
    }
    return ToUtf8(Trim(line));
}

std::string KilometresText(long metres)
{
    const std::string rest = std::to_string(metres % 1000);
    return (metres < 1000 ? "0" : ToUtf8(Format(i32(metres / 1000), "###,###"))) + "," +
           std::string(3 - rest.size(), '0') + rest;
}

std::string MonthName(int month)
{
    return ToUtf8(Format(CalendarDate(CalendarDate::kFirstYear, static_cast<unsigned>(month), 1), "mmmm"));
}

bool ReadOrWarn(Book& book, const std::string& what, const std::function<void()>& read)
{
    const BoxTexts boxes;
    read();
    if (boxes.All().empty()) {
        return true;
    }
    book.warnings.push_back(what + " («" + ToUtf8(boxes.All().front()) + "»)");
    return false;
}

bool HasEntries()
{
    const int last = CalendarDate(YearOf(Giorni), 12, 31).DayOfYear().value();
    return std::any_of(Giorni.begin() + 1, Giorni.begin() + 1 + last, HasEntry);
}

Book MakeBook(const std::string& diary, const AllDiaries& others)
{
    Book book;
    book.year = YearOf(Giorni);
    book.diary = diary;
    SetDates(book.year);
    book.facts = YearFacts();
    book.chapters = {YearChapter(book.year, others), DaysChapter(),
                     RacesChapter(book.year, book),  RoutesChapter(book),
                     StatisticsChapter(book),        TablesChapter(book)};
    std::erase_if(book.chapters, [](const BookChapter& chapter) { return chapter.parts.empty(); });
    return book;
}

} // namespace zelvia
