// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"

#include "core/Conversions.h"

#include <array>
#include <charconv>
#include <ctime>
#include <utility>

namespace zelvia
{
namespace
{

constexpr std::array<TextView, 7> kDayNames = {"domenica",  "lunedì"_t,  "martedì"_t, "mercoledì"_t,
                                               "giovedì"_t, "venerdì"_t, "sabato"};
constexpr std::array<TextView, 12> kMonthNames = {"gennaio",   "febbraio", "marzo",    "aprile",
                                                  "maggio",    "giugno",   "luglio",   "agosto",
                                                  "settembre", "ottobre",  "novembre", "dicembre"};

// The last short year that counts as of this century, as the Italian short date reads it.
constexpr int kLastShortYear = 29;

std::function<CalendarDate()> replacedClock;

int DatePart(TextView text, std::size_t minDigits, std::size_t maxDigits)
{
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ptr != text.data() + text.size() || result.ec != std::errc() || text.starts_with('-') ||
        text.size() < minDigits || text.size() > maxDigits) {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
    return value;
}

/// The year of a date that was typed.
int YearPart(TextView text)
{
    const int year = DatePart(text, 1, 4);
    switch (text.size()) {
    case 4: return year;
    case 3: throw ErroreRunTime(Errore::TipoNonCorrispondente);
    default: return year + (year <= kLastShortYear ? 2000 : 1900);
    }
}

Text FormatPart(CalendarDate date, char letter, std::size_t count)
{
    const auto month = static_cast<std::size_t>(date.Month().value());
    switch (letter) {
    case 'd': return count >= 4 ? Text(kDayNames[date.Weekday()]) : Format(date.Day(), count == 2 ? "00" : "0");
    case 'm': return count >= 4 ? Text(kMonthNames[month - 1]) : Format(date.Month(), count == 2 ? "00" : "0");
    default: return count == 1 ? PlainText(date.DayOfYear()) : Format(date.Year(), "0000");
    }
}

} // namespace

CalendarDate CalendarDate::InRange(std::chrono::sys_days days)
{
    const int year = static_cast<int>(std::chrono::year_month_day(days).year());
    if (year < kFirstYear || year > kLastYear) {
        throw ErroreRunTime(Errore::Overflow);
    }
    return CalendarDate(days);
}

CalendarDate CalendarDate::PlusDays(int days) const
{
    constexpr int limit = 4'000'000;
    if (days < -limit || days > limit) {
        throw ErroreRunTime(Errore::Overflow);
    }
    return InRange(days_ + std::chrono::days(days));
}

CalendarDate CalendarDate::PlusMonths(int months) const
{
    constexpr int limit = 12 * (kLastYear + 1);
    if (months < -limit || months > limit) {
        throw ErroreRunTime(Errore::Overflow);
    }
    auto date = Fields() + std::chrono::months(months);
    if (!date.ok()) {
        date = date.year() / date.month() / std::chrono::last;
    }
    return InRange(date);
}

CalendarDate Date()
{
    if (replacedClock) {
        return replacedClock();
    }
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    return {local->tm_year + 1900, static_cast<unsigned>(local->tm_mon + 1), static_cast<unsigned>(local->tm_mday)};
}

void SetClock(std::function<CalendarDate()> clock)
{
    replacedClock = std::move(clock);
}

CalendarDate DateValue(TextView text)
{
    const auto first = text.find('/');
    const auto second = first == TextView::npos ? TextView::npos : text.find('/', first + 1);
    if (second == TextView::npos) {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
    const int day = DatePart(Trim(text.substr(0, first)), 1, 2);
    const int month = DatePart(Trim(text.substr(first + 1, second - first - 1)), 1, 2);
    const int year = YearPart(Trim(text.substr(second + 1)));
    return {year, static_cast<unsigned>(month), static_cast<unsigned>(day)};
}

CalendarDate IsoDate(TextView text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
    return {DatePart(text.substr(0, 4), 4, 4), static_cast<unsigned>(DatePart(text.substr(5, 2), 2, 2)),
            static_cast<unsigned>(DatePart(text.substr(8, 2), 2, 2))};
}

CalendarDate DateAdd(TextView interval, int number, CalendarDate date)
{
    if (interval == "d") {
        return date.PlusDays(number);
    }
    if (interval == "m") {
        return date.PlusMonths(number);
    }
    throw ErroreRunTime(Errore::ArgomentoNonValido);
}

Text Format(CalendarDate date, TextView pattern)
{
    Text result;
    for (std::size_t i = 0; i < pattern.size();) {
        const char letter = pattern[i];
        const auto end = std::min(pattern.find_first_not_of(letter, i), pattern.size());
        if (letter == 'd' || letter == 'm' || letter == 'y') {
            result += FormatPart(date, letter, end - i);
        } else {
            result.append(end - i, letter);
        }
        i = end;
    }
    return result;
}

Text PlainText(CalendarDate date)
{
    return Format(date, "dd/mm/yyyy");
}

} // namespace zelvia
