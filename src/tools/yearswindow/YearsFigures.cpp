// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/YearsFigures.h"

#include "core/Conversions.h"
#include "toolkit/QtText.h"
#include "tools/years/Goals.h"
#include "tools/yearswindow/FigureMaker.h"
#include "tools/yearswindow/FigureTexts.h"

#include <QDate>

#include <cstdlib>

namespace zelvia
{
namespace
{

using Texts = FigureTexts;

class Standings
{
    Q_DECLARE_TR_FUNCTIONS(YearsFigures)

public:
    static QString Say(const Standing& standing, int kilometres)
    {
        return tr("Obiettivo di %1 km: fatti %2 km, %3. %4")
            .arg(ToQString(Format(i32(kilometres), "#,##0")), Texts::Km(standing.done), Against(standing),
                 Rest(standing));
    }

private:
    static QString Against(const Standing& standing)
    {
        if (standing.ahead == 0) {
            return tr("sulla linea costante");
        }
        return (standing.ahead > 0 ? tr("%1 km avanti sulla linea costante")
                                   : tr("%1 km indietro sulla linea costante"))
            .arg(Texts::Km(std::abs(standing.ahead)));
    }

    static QString Rest(const Standing& standing)
    {
        if (standing.left == 0) {
            return tr("È raggiunto.");
        }
        const QString left = tr("Mancano %1 km").arg(Texts::Km(standing.left));
        return standing.daysLeft == 0
                   ? left + QLatin1Char('.')
                   : tr("%1, %2 km a settimana fino al 31 dicembre.").arg(left, Texts::Km(standing.aWeek));
    }
};

} // namespace

const std::vector<FigureKindRow>& FigureKinds()
{
    static const std::vector<FigureKindRow> kinds = {
        {FigureKind::Weeks, QT_TRANSLATE_NOOP("YearsFigures", "Settimane"), true, false, true, false},
        {FigureKind::Months, QT_TRANSLATE_NOOP("YearsFigures", "Mesi"), true, false, true, false},
        {FigureKind::Years, QT_TRANSLATE_NOOP("YearsFigures", "Anni"), false, false, false, false},
        {FigureKind::Curve, QT_TRANSLATE_NOOP("YearsFigures", "Curva e obiettivo"), true, false, true, false},
        {FigureKind::Paces, QT_TRANSLATE_NOOP("YearsFigures", "Andatura"), false, false, false, true},
        {FigureKind::Distances, QT_TRANSLATE_NOOP("YearsFigures", "Tempi per distanza"), true, true, false, false},
        {FigureKind::Routes, QT_TRANSLATE_NOOP("YearsFigures", "Tempi per percorso"), true, true, false, false},
        {FigureKind::Weights, QT_TRANSLATE_NOOP("YearsFigures", "Peso"), true, true, false, false},
        {FigureKind::Loads, QT_TRANSLATE_NOOP("YearsFigures", "Carico"), true, true, false, false}};
    return kinds;
}

Figure FigureOf(FigureKind kind, const YearsRead& read, const FigureChoices& choices)
{
    switch (kind) {
    case FigureKind::Weeks: return WeeksFigure(read, choices);
    case FigureKind::Months: return MonthsFigure(read, choices);
    case FigureKind::Years: return YearsFigure(read, choices);
    case FigureKind::Curve: return CurveFigure(read, choices);
    case FigureKind::Paces: return PacesFigure(read, choices);
    case FigureKind::Distances: return DistancesFigure(read, choices);
    case FigureKind::Routes: return RoutesFigure(read, choices);
    case FigureKind::Weights: return WeightsFigure(read, choices);
    default: return LoadsFigure(read, choices);
    }
}

QString StandingText(const YearsRead& read, int year, int kilometres)
{
    return Standings::Say(StandingOf(read.days, year, kilometres, read.today), kilometres);
}

double PlaceOf(CalendarDate date)
{
    return static_cast<double>(QDate(date.Year().value(), date.Month().value(), date.Day().value()).toJulianDay());
}

double InKm(long metres)
{
    constexpr double perKm = 1000;
    return static_cast<double>(metres) / perKm;
}

QList<FigureTick> MonthTicks(CalendarDate first, CalendarDate last, double (*placeOf)(CalendarDate), bool years)
{
    QList<FigureTick> ticks;
    for (CalendarDate month(first.Year().value(), 1, 1); month <= last; month = month.PlusMonths(1)) {
        const int number = month.Month().value();
        ticks << FigureTick{placeOf(month),
                            years && number == 1 ? QString::number(month.Year().value()) : Texts::ShortMonth(number)};
    }
    return ticks;
}

double DayOfYear(CalendarDate date)
{
    return date.DayOfYear().value();
}

} // namespace zelvia
