// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/FigureTexts.h"

#include "core/Conversions.h"
#include "toolkit/QtText.h"

#include <QLocale>

namespace zelvia
{
namespace
{

constexpr int kPerUnit = 60; ///< Seconds to the minute, minutes to the hour.

QLocale Italian()
{
    return {QLocale::Italian, QLocale::Italy};
}

QString TwoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QString FigureTexts::Km(long metres)
{
    constexpr double perKm = 1000;
    return Italian().toString(static_cast<double>(metres) / perKm, 'f', 3);
}

QString FigureTexts::Weight(double kilograms)
{
    return Italian().toString(kilograms, 'f', 1);
}

QString FigureTexts::Time(int seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / kPerUnit / kPerUnit)
        .arg(TwoDigits(seconds / kPerUnit % kPerUnit), TwoDigits(seconds % kPerUnit));
}

QString FigureTexts::Pace(double seconds)
{
    const int whole = static_cast<int>(seconds);
    return QStringLiteral("%1:%2").arg(whole / kPerUnit).arg(TwoDigits(whole % kPerUnit));
}

QString FigureTexts::Day(CalendarDate date)
{
    return ToQString(PlainText(date));
}

QString FigureTexts::Month(CalendarDate date)
{
    return ToQString(Format(date, "mmmm"));
}

QString FigureTexts::ShortMonth(int month)
{
    constexpr int letters = 3;
    return Month(CalendarDate(2000, static_cast<unsigned>(month), 1)).left(letters);
}

QString FigureTexts::Runs(int runs)
{
    return runs == 1 ? tr("1 uscita") : tr("%1 uscite").arg(runs);
}

} // namespace zelvia
