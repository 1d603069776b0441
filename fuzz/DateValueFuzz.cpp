// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Dates from texts, and what is computed from them.
#include "Harness.h"
#include "core/Conversions.h"
#include "core/Date.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

/// One or two digits, one or two digits, then one, two or four digits, each with blanks around.
bool HasTheForm(const Text& text)
{
    std::size_t at = 0;
    const auto skipBlanks = [&] {
        while (at < text.size() && text[at] == ' ') {
            ++at;
        }
    };
    for (const std::size_t longest : {2U, 2U, 4U}) {
        std::size_t digits = 0;
        skipBlanks();
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
            ++at;
            ++digits;
        }
        skipBlanks();
        if (digits < 1 || digits == 3 || digits > longest) {
            return false;
        }
        const bool last = longest == 4;
        if (last ? at != text.size() : at == text.size() || text[at] != '/') {
            return false;
        }
        ++at;
    }
    return true;
}

void CheckCounting(CalendarDate date, std::int32_t number)
{
    CalendarDate later;
    if (RaisedBy([&] { later = DateAdd("d", number, date); }) == 0) {
        Require(DateAdd("d", -number, later) == date, "days forth and back");
    }
    if (RaisedBy([&] { later = DateAdd("m", number, date); }) == 0) {
        Require(later.Day() <= date.Day(), "a month later is never a later day of the month");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = InputText(data, size);
    CalendarDate date;
    const int error = RaisedBy([&] { date = DateValue(text); });
    RequireError(error, {Errore::TipoNonCorrispondente});
    if (error != 0) {
        return 0;
    }
    Require(HasTheForm(text), "only day/month/year is a date");
    Require(DateValue(PlainText(date)) == date, "a date as text is that date");
    Require(CalendarDate(date.Year().value(), 1, 1).PlusDays(date.DayOfYear().value() - 1) == date,
            "the day of the year");
    for (const std::int32_t number : {1, -1, 31, 366, 12000, 4000000, INT32_MIN + 1, INT32_MAX}) {
        CheckCounting(date, number);
    }
    return 0;
}
