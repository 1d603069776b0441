// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Paces, best times and weights.
#include "core/Conversions.h"
#include "toolkit/QtText.h"
#include "tools/years/Bests.h"
#include "tools/yearswindow/FigureMaker.h"
#include "tools/yearswindow/FigureTexts.h"

#include <algorithm>
#include <map>
#include <set>

namespace zelvia
{
namespace
{

constexpr double kMetresPerKm = 1000;

using Look = FigureSeries::Look;
using Texts = FigureTexts;

/// Makes the figures of paces, times and weights.
class RunMaker : public FigureMaker
{
    Q_DECLARE_TR_FUNCTIONS(YearsFigures)

public:
    RunMaker(const YearsRead& read, const FigureChoices& choices) : FigureMaker(read, choices) {}

    Figure Paces()
    {
        const bool one = !choices_.route.empty();
        figure_.title =
            one ? tr("Andatura per anno, %1").arg(ToQString(choices_.route)) : tr("Andatura per percorso e anno");
        figure_.measure = Measure::Pace;
        figure_.heads = {tr("Percorso"), tr("Anno"), tr("Uscite"), tr("Km"), tr("Media al km")};
        std::map<int, QString> years;
        QList<std::pair<int, FigureSeries>> routes; // With their runs.
        for (const RoutePace& pace : PacesByRoute(read_.days)) {
            if (one && !SameText(pace.route, choices_.route)) {
                continue;
            }
            const QString route = ToQString(pace.route);
            const QString year = QString::number(pace.year);
            if (routes.isEmpty() || routes.back().second.name != route) {
                routes << std::pair(0, FigureSeries{route, Look::Line, {}});
            }
            routes.back().first += pace.runs;
            routes.back().second.points << FigurePoint{
                static_cast<double>(pace.year), pace.SecondsPerKm(),
                tr("%1, %2: %3 al km, %4").arg(route, year, Texts::Pace(pace.SecondsPerKm()), Texts::Runs(pace.runs))};
            years[pace.year] = year;
            figure_.rows << QStringList{route, year, QString::number(pace.runs), Texts::Km(pace.metres),
                                        Texts::Pace(pace.SecondsPerKm())};
        }
        for (const auto& [year, label] : years) {
            figure_.ticks << FigureTick{static_cast<double>(year), label};
        }
        AddRoutes(std::move(routes));
        return std::move(figure_);
    }

    Figure Distances()
    {
        figure_.title = tr("Migliori tempi per distanza, %1").arg(Span());
        figure_.measure = Measure::Pace;
        figure_.named = true;
        figure_.heads = {tr("Km"), tr("Tempo"), tr("Media al km"), tr("Giorno"), tr("Percorso"), tr("Uscite")};
        const std::vector<BestTime> bests = BestsByDistance(ChosenDays());
        const std::set<const BestTime*> charted = MostRun(bests);
        for (const BestTime& best : bests) {
            const QString km = Texts::Km(best.metres);
            const QString route = ToQString(best.route);
            figure_.rows << QStringList{km};
            AddTime(best);
            if (charted.contains(&best)) {
                AddPoint(best, km, route.isEmpty() ? tr("%1 km").arg(km) : tr("%1 km, %2").arg(km, route));
            }
            figure_.rows.back() << route << QString::number(best.runs);
        }
        return std::move(figure_);
    }

    Figure Routes()
    {
        figure_.title = tr("Migliori tempi per percorso, %1").arg(Span());
        figure_.measure = Measure::Pace;
        figure_.named = true;
        figure_.heads = {tr("Percorso"), tr("Km"), tr("Tempo"), tr("Media al km"), tr("Giorno"), tr("Uscite")};
        const std::vector<BestTime> bests = BestsByRoute(ChosenDays());
        const std::set<const BestTime*> charted = MostRun(bests);
        for (const BestTime& best : bests) {
            const QString km = Texts::Km(best.metres);
            const QString route = ToQString(best.route);
            figure_.rows << QStringList{route, km};
            AddTime(best);
            if (charted.contains(&best)) {
                AddPoint(best, route, tr("%1, %2 km").arg(route, km));
            }
            figure_.rows.back() << QString::number(best.runs);
        }
        return std::move(figure_);
    }

    Figure Weights() { return choices_.year == FigureChoices::kAll ? MonthWeights() : DayWeights(); }

private:
    /// The routes that were run most often come first, and those behind the sixth are faint.
    void AddRoutes(QList<std::pair<int, FigureSeries>> routes)
    {
        constexpr qsizetype told = 6;
        std::stable_sort(routes.begin(), routes.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
        for (auto& [runs, series] : routes) {
            series.look = figure_.series.size() < told ? Look::Line : Look::Faint;
            figure_.series << std::move(series);
        }
    }

    /// The days of the chosen year, or of all.
    std::vector<DiaryDay> ChosenDays() const
    {
        if (choices_.year == FigureChoices::kAll) {
            return read_.days;
        }
        const DiaryYear* year = read_.all.Find(choices_.year);
        return year == nullptr ? std::vector<DiaryDay>() : year->days;
    }

    /// The sixty of the most runs, as many as a chart of the program has.
    static std::set<const BestTime*> MostRun(const std::vector<BestTime>& bests)
    {
        constexpr std::size_t most = 60;
        std::vector<const BestTime*> sorted;
        for (const BestTime& best : bests) {
            sorted.push_back(&best);
        }
        std::stable_sort(sorted.begin(), sorted.end(), [](const auto* a, const auto* b) { return a->runs > b->runs; });
        sorted.resize(std::min(most, sorted.size()));
        return {sorted.begin(), sorted.end()};
    }

    static double PaceOf(const BestTime& best) { return best.best.seconds * kMetresPerKm / best.metres; }

    /// Time, pace and day in the row that was begun last.
    void AddTime(const BestTime& best)
    {
        figure_.rows.back() << Texts::Time(best.best.seconds) << Texts::Pace(PaceOf(best))
                            << Texts::Day(best.best.date);
    }

    /// A best time as a point, under the name that it has on the axis.
    void AddPoint(const BestTime& best, const QString& label, const QString& spoken)
    {
        if (figure_.series.isEmpty()) {
            figure_.series << FigureSeries{tr("Media al km"), Look::Points, {}};
        }
        const double place = static_cast<double>(figure_.ticks.size() + 1);
        figure_.ticks << FigureTick{place, label};
        figure_.series.front().points << FigurePoint{
            place, PaceOf(best),
            tr("%1: %2, %3 al km, il %4")
                .arg(spoken, Texts::Time(best.best.seconds), Texts::Pace(PaceOf(best)), Texts::Day(best.best.date))};
    }

    Figure MonthWeights()
    {
        figure_.title = tr("Peso, media del mese, tutti gli anni");
        figure_.measure = Measure::Kilograms;
        figure_.heads = {tr("Mese"), tr("Kg"), tr("Minimo"), tr("Massimo"), tr("Giorni")};
        FigureSeries series{tr("Peso"), Look::Line, {}};
        const std::vector<MonthWeight> months = WeightsByMonth(read_.days);
        for (const MonthWeight& month : months) {
            const QString name =
                Texts::Month(month.month) + QLatin1Char(' ') + QString::number(month.month.Year().value());
            const QString mean = Texts::Weight(month.mean);
            series.points << FigurePoint{
                PlaceOf(month.month), month.mean,
                tr("%1: %2 kg in media, da %3 a %4").arg(name, mean).arg(month.lowest).arg(month.highest)};
            figure_.rows << QStringList{name, mean, QString::number(month.lowest), QString::number(month.highest),
                                        QString::number(month.days)};
        }
        if (!months.empty()) {
            figure_.ticks = MonthTicks(months.front().month, months.back().month, &PlaceOf, true);
        }
        figure_.series << std::move(series);
        return std::move(figure_);
    }

    Figure DayWeights()
    {
        figure_.title = tr("Peso, %1").arg(Year());
        figure_.measure = Measure::Kilograms;
        figure_.heads = {tr("Giorno"), tr("Kg")};
        FigureSeries series{tr("Peso"), Look::Line, {}};
        for (const DiaryDay& day : ChosenDays()) {
            if (day.kilograms > 0) {
                const QString date = Texts::Day(day.date);
                series.points << FigurePoint{DayOfYear(day.date), static_cast<double>(day.kilograms),
                                             tr("%1: %2 kg").arg(date).arg(day.kilograms)};
                figure_.rows << QStringList{date, QString::number(day.kilograms)};
            }
        }
        figure_.ticks =
            MonthTicks(CalendarDate(choices_.year, 1, 1), CalendarDate(choices_.year, 12, 31), &DayOfYear, false);
        figure_.series << std::move(series);
        return std::move(figure_);
    }
};

} // namespace

Figure PacesFigure(const YearsRead& read, const FigureChoices& choices)
{
    return RunMaker(read, choices).Paces();
}

Figure DistancesFigure(const YearsRead& read, const FigureChoices& choices)
{
    return RunMaker(read, choices).Distances();
}

Figure RoutesFigure(const YearsRead& read, const FigureChoices& choices)
{
    return RunMaker(read, choices).Routes();
}

Figure WeightsFigure(const YearsRead& read, const FigureChoices& choices)
{
    return RunMaker(read, choices).Weights();
}

} // namespace zelvia
