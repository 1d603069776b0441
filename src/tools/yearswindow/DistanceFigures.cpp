// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Kilometres by week, month and year, the curve of a year, the load.
#include "toolkit/QtText.h"
#include "tools/years/Periods.h"
#include "tools/yearswindow/FigureMaker.h"
#include "tools/yearswindow/FigureTexts.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

namespace zelvia
{
namespace
{

constexpr double kPerKm = 1000;

using Look = FigureSeries::Look;
using Texts = FigureTexts;

/// Makes the figures of kilometres.
class DistanceMaker : public FigureMaker
{
    Q_DECLARE_TR_FUNCTIONS(YearsFigures)

public:
    DistanceMaker(const YearsRead& read, const FigureChoices& choices) : FigureMaker(read, choices) {}

    Figure Weeks() { return Periods(&WeeksOf, &DistanceMaker::WeekText, tr("Settimana")); }
    Figure Months() { return Periods(&MonthsOf, &DistanceMaker::MonthText, tr("Mese")); }

    Figure Years()
    {
        figure_.title = tr("Chilometri per anno");
        const std::vector<PeriodTotal> years = YearsOf(read_.all);
        figure_.series << SeriesOf(tr("Chilometri"), Look::Bars, years, &DistanceMaker::YearText);
        figure_.heads = {tr("Anno"), tr("Km"), tr("Uscite"), tr("Gare")};
        for (const PeriodTotal& year : years) {
            figure_.ticks << FigureTick{static_cast<double>(year.number), QString::number(year.number)};
            figure_.rows << QStringList{QString::number(year.number), Texts::Km(year.metres),
                                        QString::number(year.runs), QString::number(year.races)};
        }
        return std::move(figure_);
    }

    Figure Curve()
    {
        figure_.title = tr("Chilometri dall'inizio dell'anno, %1").arg(Year());
        const CalendarDate last(choices_.year, 12, 31);
        figure_.ticks = MonthTicks(CalendarDate(choices_.year, 1, 1), last, &DayOfYear, false);
        figure_.series << CurveOfYear(choices_.year, Look::Line);
        figure_.heads = {tr("Giorno"), tr("Km")};
        const QList<FigurePoint>& own = figure_.series.front().points;
        const int days = last.DayOfYear().value();
        for (int day = 1; day <= days; ++day) {
            figure_.rows << QStringList{Texts::Day(last.PlusDays(day - days)),
                                        day <= own.size() ? Texts::Km(std::lround(own[day - 1].value * kPerKm))
                                                          : QString()};
        }
        if (choices_.goal) {
            AddBeside(tr("Linea costante"), SteadyLine(*choices_.goal));
        }
        for (const int other : Others()) {
            AddBeside(tr("Km %1").arg(other), CurveOfYear(other, OthersLook()), [&](qsizetype row) {
                return PlaceInOther(last.PlusDays(static_cast<int>(row + 1) - days), other);
            });
        }
        return std::move(figure_);
    }

    Figure Loads()
    {
        figure_.title = tr("Carico di 7 e di 42 giorni, %1").arg(Span());
        figure_.heads = {tr("Giorno"), tr("7 giorni, km"), tr("42 giorni, km a settimana")};
        FigureSeries week{tr("7 giorni"), Look::Line, {}};
        FigureSeries sixWeeks{tr("42 giorni, a settimana"), Look::Line, {}};
        std::optional<CalendarDate> first;
        CalendarDate last;
        for (const Load& load : LoadOf(read_.all, read_.today)) {
            if (ShowsLoadOf(load.date)) {
                first = first.value_or(load.date);
                last = load.date;
                AddLoad(load, week, sixWeeks);
            }
        }
        if (first) {
            figure_.ticks = MonthTicks(*first, last, &PlaceOf, choices_.year == FigureChoices::kAll);
        }
        figure_.series << std::move(week) << std::move(sixWeeks);
        return std::move(figure_);
    }

private:
    using PeriodText = QString (*)(const PeriodTotal&);

    static QString WeekText(const PeriodTotal& week)
    {
        return tr("Settimana %1, dal %2 al %3").arg(week.number).arg(Texts::Day(week.first), Texts::Day(week.last));
    }
    static QString MonthText(const PeriodTotal& month)
    {
        return Texts::Month(month.first) + QLatin1Char(' ') + QString::number(month.first.Year().value());
    }
    static QString YearText(const PeriodTotal& year) { return QString::number(year.number); }

    /// The years beside the chosen one.
    std::vector<int> Others() const
    {
        std::vector<int> others;
        for (const DiaryYear& year : read_.all.years) {
            if (year.year != choices_.year && (choices_.other == FigureChoices::kAll || choices_.other == year.year)) {
                others.push_back(year.year);
            }
        }
        return others;
    }
    Look OthersLook() const { return choices_.other == FigureChoices::kAll ? Look::Faint : Look::Line; }

    static FigureSeries SeriesOf(const QString& name, Look look, const std::vector<PeriodTotal>& periods,
                                 PeriodText text)
    {
        FigureSeries series{name, look, {}};
        for (const PeriodTotal& period : periods) {
            series.points << FigurePoint{
                static_cast<double>(period.number), InKm(period.metres),
                tr("%1: %2 km, %3").arg(text(period), Texts::Km(period.metres), Texts::Runs(period.runs))};
        }
        return series;
    }

    Figure Periods(std::vector<PeriodTotal> (*periodsOf)(DaySpan, int), PeriodText text, const QString& head)
    {
        const bool weeks = text == &DistanceMaker::WeekText;
        figure_.title = (weeks ? tr("Chilometri per settimana, %1") : tr("Chilometri per mese, %1")).arg(Year());
        const std::vector<PeriodTotal> periods = periodsOf(read_.days, choices_.year);
        figure_.series << SeriesOf(Year(), Look::Bars, periods, text);
        figure_.heads = weeks ? QStringList{head, tr("Dal"), tr("Al")} : QStringList{head};
        figure_.heads << tr("Km") << tr("Uscite") << tr("Gare");
        for (const PeriodTotal& period : periods) {
            const QString number = QString::number(period.number);
            figure_.ticks << FigureTick{static_cast<double>(period.number),
                                        weeks ? number : Texts::ShortMonth(period.number)};
            QStringList row{weeks ? number : Texts::Month(period.first)};
            if (weeks) {
                row << Texts::Day(period.first) << Texts::Day(period.last);
            }
            figure_.rows << (row << Texts::Km(period.metres) << QString::number(period.runs)
                                 << QString::number(period.races));
        }
        for (const int other : Others()) {
            const std::vector<PeriodTotal> beside = periodsOf(read_.days, other);
            AddRowsFor(beside);
            AddBeside(tr("Km %1").arg(other), SeriesOf(QString::number(other), OthersLook(), beside, text));
        }
        return std::move(figure_);
    }

    /// Rows and labels for the periods that the chosen year has not got: a week 53.
    void AddRowsFor(const std::vector<PeriodTotal>& beside)
    {
        for (std::size_t i = static_cast<std::size_t>(figure_.rows.size()); i < beside.size(); ++i) {
            const QString number = QString::number(beside[i].number);
            figure_.ticks << FigureTick{static_cast<double>(beside[i].number), number};
            QStringList row{number};
            row.resize(figure_.heads.size());
            figure_.rows << row;
        }
    }

    /// The place of a day in the curve of another year. 29 February of a year without one is its 28 February.
    static qsizetype PlaceInOther(CalendarDate date, int other)
    {
        constexpr unsigned february = 2;
        const auto month = static_cast<unsigned>(date.Month().value());
        const auto day = static_cast<unsigned>(date.Day().value());
        const auto most = static_cast<unsigned>(CalendarDate(other, february + 1, 1).PlusDays(-1).Day().value());
        return CalendarDate(other, month, month == february ? std::min(day, most) : day).DayOfYear().value() - 1;
    }

    static qsizetype SamePlace(qsizetype row) { return row; }

    /// Another line, with a column of the table: `placeOf` tells which of its points a row shows.
    void AddBeside(const QString& head, FigureSeries series,
                   const std::function<qsizetype(qsizetype)>& placeOf = &SamePlace)
    {
        figure_.heads << head;
        for (qsizetype row = 0; row < figure_.rows.size(); ++row) {
            const qsizetype place = placeOf(row);
            const bool reached = place < series.points.size();
            figure_.rows[row] << (reached ? Texts::Km(std::lround(series.points[place].value * kPerKm)) : QString());
        }
        figure_.series << std::move(series);
    }

    FigureSeries CurveOfYear(int year, Look look) const
    {
        FigureSeries series{QString::number(year), look, {}};
        CalendarDate date(year, 1, 1);
        for (const long metres : CurveOf(read_.days, year, LastKnownDay(read_.days, year, read_.today))) {
            series.points << FigurePoint{
                DayOfYear(date), InKm(metres),
                tr("%1: %2 km dall'inizio dell'anno").arg(Texts::Day(date), Texts::Km(metres))};
            date = date.PlusDays(1);
        }
        return series;
    }

    /// The line to the goal, a point a day.
    FigureSeries SteadyLine(int kilometres) const
    {
        const CalendarDate last(choices_.year, 12, 31);
        const int days = last.DayOfYear().value();
        FigureSeries series{tr("Linea costante"), Look::Steady, {}};
        for (int day = 1; day <= days; ++day) {
            const double due = static_cast<double>(kilometres) * day / days;
            series.points << FigurePoint{
                static_cast<double>(day), due,
                tr("%1: la linea costante è a %2 km")
                    .arg(Texts::Day(last.PlusDays(day - days)), Texts::Km(std::lround(due * kPerKm)))};
        }
        return series;
    }

    /// Of all years a Sunday each week, of one every day.
    bool ShowsLoadOf(CalendarDate date) const
    {
        return choices_.year == FigureChoices::kAll ? date.Weekday() == 0 : date.Year() == choices_.year;
    }

    void AddLoad(const Load& load, FigureSeries& week, FigureSeries& sixWeeks)
    {
        const double place = PlaceOf(load.date);
        const QString day = Texts::Day(load.date);
        const QString seven = Texts::Km(load.week);
        const QString fortyTwo = load.full ? Texts::Km(load.sixWeeks) : QString();
        week.points << FigurePoint{place, InKm(load.week), tr("%1: %2 km negli ultimi 7 giorni").arg(day, seven)};
        if (load.full) {
            sixWeeks.points << FigurePoint{place, InKm(load.sixWeeks),
                                           tr("%1: %2 km a settimana negli ultimi 42 giorni").arg(day, fortyTwo)};
        }
        figure_.rows << QStringList{day, seven, fortyTwo};
    }
};

} // namespace

Figure WeeksFigure(const YearsRead& read, const FigureChoices& choices)
{
    return DistanceMaker(read, choices).Weeks();
}

Figure MonthsFigure(const YearsRead& read, const FigureChoices& choices)
{
    return DistanceMaker(read, choices).Months();
}

Figure YearsFigure(const YearsRead& read, const FigureChoices& choices)
{
    return DistanceMaker(read, choices).Years();
}

Figure CurveFigure(const YearsRead& read, const FigureChoices& choices)
{
    return DistanceMaker(read, choices).Curve();
}

Figure LoadsFigure(const YearsRead& read, const FigureChoices& choices)
{
    return DistanceMaker(read, choices).Loads();
}

} // namespace zelvia
