// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/yearswindow/YearsFigures.h"

#include <QCoreApplication>

namespace zelvia
{

/// A place along a figure of several years.
double PlaceOf(CalendarDate date);
/// A place along a figure of one year.
double DayOfYear(CalendarDate date);

/// A tick at the beginning of each month; with `years` a January has the number of its year.
QList<FigureTick> MonthTicks(CalendarDate first, CalendarDate last, double (*placeOf)(CalendarDate), bool years);

double InKm(long metres);

/// What the makers of figures share.
class FigureMaker
{
    Q_DECLARE_TR_FUNCTIONS(YearsFigures)

protected:
    FigureMaker(const YearsRead& read, const FigureChoices& choices) : read_(read), choices_(choices) {}

    QString Year() const { return QString::number(choices_.year); }
    QString Span() const { return choices_.year == FigureChoices::kAll ? tr("tutti gli anni") : Year(); }

    const YearsRead& read_;
    const FigureChoices& choices_;
    Figure figure_;
};

// The figures of each kind.
Figure WeeksFigure(const YearsRead& read, const FigureChoices& choices);
Figure MonthsFigure(const YearsRead& read, const FigureChoices& choices);
Figure YearsFigure(const YearsRead& read, const FigureChoices& choices);
Figure CurveFigure(const YearsRead& read, const FigureChoices& choices);
Figure LoadsFigure(const YearsRead& read, const FigureChoices& choices);
Figure PacesFigure(const YearsRead& read, const FigureChoices& choices);
Figure DistancesFigure(const YearsRead& read, const FigureChoices& choices);
Figure RoutesFigure(const YearsRead& read, const FigureChoices& choices);
Figure WeightsFigure(const YearsRead& read, const FigureChoices& choices);

} // namespace zelvia
