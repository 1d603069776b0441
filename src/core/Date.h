// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <chrono>
#include <compare>
#include <functional>

namespace zelvia
{

/// A calendar day with no time part, 01/01/0100 to 31/12/9999.
class CalendarDate
{
public:
    /// 30/12/1899, the date that a value holds before one is given.
    constexpr CalendarDate() = default;

    /// Raises error 13 when there is no such day, or when it is out of range.
    constexpr CalendarDate(int year, unsigned month, unsigned day) : days_(Checked(year, month, day)) {}

    constexpr i16 Day() const { return static_cast<unsigned>(Fields().day()); }
    constexpr i16 Month() const { return static_cast<unsigned>(Fields().month()); }
    constexpr i16 Year() const { return static_cast<int>(Fields().year()); }

    /// 1 for 1 January, 365 or 366 for 31 December.
    constexpr i16 DayOfYear() const
    {
        const auto firstDay = std::chrono::sys_days(Fields().year() / std::chrono::January / 1);
        return (days_ - firstDay).count() + 1;
    }

    /// 0 for Sunday, 6 for Saturday.
    constexpr unsigned Weekday() const { return std::chrono::weekday(days_).c_encoding(); }

    /// Raises error 6 when the result is out of range.
    CalendarDate PlusDays(int days) const;

    /// The same day of the month `months` later, or the last day of that month if it has no such day.
    /// Raises error 6 when the result is out of range.
    CalendarDate PlusMonths(int months) const;

    friend constexpr bool operator==(CalendarDate, CalendarDate) = default;
    friend constexpr std::strong_ordering operator<=>(CalendarDate a, CalendarDate b)
    {
        return a.days_.time_since_epoch().count() <=> b.days_.time_since_epoch().count();
    }

    static constexpr int kFirstYear = 100;
    static constexpr int kLastYear = 9999;

private:
    explicit constexpr CalendarDate(std::chrono::sys_days days) : days_(days) {}
    constexpr std::chrono::year_month_day Fields() const { return std::chrono::year_month_day(days_); }

    static constexpr std::chrono::sys_days Checked(int year, unsigned month, unsigned day)
    {
        if (year < kFirstYear || year > kLastYear || month > 12 || day > 31) {
            throw ErroreRunTime(Errore::TipoNonCorrispondente);
        }
        const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                               std::chrono::day(day)};
        if (!date.ok()) {
            throw ErroreRunTime(Errore::TipoNonCorrispondente);
        }
        return date;
    }

    static CalendarDate InRange(std::chrono::sys_days days);

    std::chrono::sys_days days_{std::chrono::days(-25569)};
};

/// The system date, in local time, or what the clock set for a test says.
CalendarDate Date();

/// Replaces the clock that Date() reads; an empty function restores the system's own.
void SetClock(std::function<CalendarDate()> clock);

/// Reads day/month/year: one or two digits, one or two digits, then one, two or four digits, blanks around each part
/// allowed. A year of one or two digits is one of 1930..2029.
/// Raises error 13 on anything else, a year of three digits too, and on a day that does not exist. The boxes for dates
/// correct a year before 2007 or 2008 first, so short years come from no box.
CalendarDate DateValue(TextView text);

/// Reads yyyy-mm-dd, a digit in each place. Raises error 13 on anything else and on a day that does not exist.
CalendarDate IsoDate(TextView text);

/// `interval` "d" adds `number` days, "m" adds months. Raises error 5 for any other interval, 6 out of range.
CalendarDate DateAdd(TextView interval, int number, CalendarDate date);

/// A date in a pattern of the parts d, dd, dddd, m, mm, mmmm, y (day of the year) and yyyy; day and month names are
/// Italian, any other character is copied unchanged.
Text Format(CalendarDate date, TextView pattern);

/// The short form day/month/year, 01/03/2008.
Text PlainText(CalendarDate date);

} // namespace zelvia
