// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"

#include <QCoreApplication>
#include <QString>

namespace zelvia
{

/// How the figures over the years write numbers and dates.
class FigureTexts
{
    Q_DECLARE_TR_FUNCTIONS(FigureTexts)

public:
    static QString Km(long metres);          ///< 1.234,500
    static QString Weight(double kilograms); ///< 70,5
    static QString Time(int seconds);        ///< 0:49:06
    static QString Pace(double seconds);     ///< 4:35; a part of a second does not count, as on the page.
    static QString Day(CalendarDate date);   ///< 20/05/2026
    static QString Month(CalendarDate date); ///< maggio
    static QString ShortMonth(int month);    ///< mag
    static QString Runs(int runs);           ///< 12 uscite
};

} // namespace zelvia
