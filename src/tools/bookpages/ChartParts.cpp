// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The drawings of a book.
#include "toolkit/Chart.h"
#include "toolkit/PagePalette.h"
#include "tools/book/BookGeometry.h"
#include "tools/book/BookParts.h"
#include "tools/bookpages/PageParts.h"

#include <QPainter>

#include <algorithm>

namespace zelvia
{
namespace
{

const QColor kOtherYear(196, 178, 140);

/// The lines across a drawing with their values.
void DrawScale(QPainter& painter, const QRectF& field, double highest)
{
    const double step = AxisStep(highest);
    for (int i = 0; i * step <= highest; ++i) {
        const double y = field.bottom() - i * step / highest * field.height();
        DrawRule(painter, field.left(), y, field.width(), i == 0 ? 1 : 0.5, i == 0 ? Ink::Print : Ink::Rule);
        DrawWord(painter, field.left() - 5, y + 3.5, QString::number(i * step), BookFont(10), Ink::Print,
                 Qt::AlignRight);
    }
}

void DrawCurve(QPainter& painter, const QRectF& field, double highest, const BookCurves::Curve& curve, const QPen& pen)
{
    constexpr double lastDay = 365;
    QPolygonF line;
    for (std::size_t day = 0; day < curve.km.size(); ++day) {
        line << QPointF(field.left() + static_cast<double>(day) / lastDay * field.width(),
                        field.bottom() - curve.km[day] / highest * field.height());
    }
    painter.setPen(pen);
    painter.drawPolyline(line);
}

void DrawCurves(QPainter& painter, const QRectF& field, const BookCurves& curves)
{
    const double highest = HighestOf(curves);
    DrawScale(painter, field, highest);
    const std::vector<int> starts = MonthStarts();
    for (std::size_t month = 0; month < starts.size(); ++month) {
        constexpr double middle = 15;
        DrawWord(painter, field.left() + (starts[month] + middle) / 366 * field.width(), field.bottom() + 14,
                 QString::fromStdString(MonthName(static_cast<int>(month) + 1).substr(0, 3)), BookFont(10), Ink::Print,
                 Qt::AlignHCenter);
    }
    std::vector<double> ends;
    for (const BookCurves::Curve& curve : curves.curves) {
        ends.push_back(field.height() * (1 - (curve.km.empty() ? 0 : curve.km.back()) / highest));
    }
    const std::vector<double> places = SpreadApart(ends, 11, field.height());
    for (std::size_t i = curves.curves.size(); i-- > 0;) {
        const bool own = i == 0;
        DrawCurve(painter, field, highest, curves.curves[i], own ? QPen(Ink::Pen, 2.2) : QPen(kOtherYear, 0.9));
        DrawWord(painter, field.right() + 5, field.top() + places[i] + 3.5, QString::number(curves.curves[i].year),
                 BookFont(10, own), own ? Ink::Pen : Ink::Faded);
    }
}

/// Where the days of a month are, and what is written around them.
struct DotGrid {
    double width;
    double left = 52;
    double top = 22;
    double row = 19;
    double right = 44;

    double Step() const { return (width - left - right) / 31; }
    QPointF At(int month, int day) const { return {left + (day - 0.5) * Step(), top + (month - 0.5) * row}; }
    double Height() const { return top + 12 * row + 34; }
};

void DrawDot(QPainter& painter, const QPointF& place, double radius, const QColor& ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(place, radius, radius);
}

void DrawMonths(QPainter& painter, const DotGrid& grid, const BookDots& dots)
{
    for (int month = 1; month <= 12; ++month) {
        const CalendarDate first(dots.year, static_cast<unsigned>(month), 1);
        const int days = first.PlusMonths(1).PlusDays(-1).Day().value();
        for (int day = 1; day <= days; ++day) {
            const bool sunday = first.PlusDays(day - 1).Weekday() == 0;
            DrawDot(painter, grid.At(month, day), 0.9, sunday ? Ink::Accent : Ink::Pencil);
        }
        long metres = 0;
        for (const BookDots::Day& day : dots.days) {
            metres += day.month == month ? day.metres : 0;
        }
        const double baseline = grid.At(month, 1).y() + 4;
        DrawWord(painter, 0, baseline, QString::fromStdString(MonthName(month)), BookFont(11), Ink::PrintDark);
        DrawWord(painter, grid.width, baseline, QString::number(metres / 1000), BookFont(11), Ink::PrintDark,
                 Qt::AlignRight);
    }
}

void DrawLegend(QPainter& painter, const DotGrid& grid, double largest)
{
    const double y = grid.Height() - 12;
    double x = grid.left;
    for (const int km : {5, 10, 21, 42}) {
        DrawDot(painter, {x + largest, y}, DotRadius(km * 1000, largest), Ink::Pen);
        DrawWord(painter, x + 2 * largest + 4, y + 3.5, QString::number(km) + QStringLiteral(" km"), BookFont(10),
                 Ink::Print);
        x += 62;
    }
    DrawDot(painter, {x + largest, y}, DotRadius(10000, largest), Ink::Accent);
    DrawWord(painter, x + 2 * largest + 4, y + 3.5, QStringLiteral("gara"), BookFont(10), Ink::Print);
}

void DrawDots(QPainter& painter, const DotGrid& grid, const BookDots& dots)
{
    const double largest = grid.Step() * 0.62;
    for (const int day : {1, 5, 10, 15, 20, 25, 31}) {
        DrawWord(painter, grid.At(1, day).x(), 12, QString::number(day), BookFont(10), Ink::Print, Qt::AlignHCenter);
    }
    DrawWord(painter, grid.width, 12, QStringLiteral("km"), BookFont(10), Ink::Print, Qt::AlignRight);
    DrawMonths(painter, grid, dots);
    for (const BookDots::Day& day : dots.days) {
        DrawDot(painter, grid.At(day.month, day.day), DotRadius(day.metres, largest),
                day.race ? Ink::Accent : Ink::Pen);
    }
    DrawLegend(painter, grid, largest);
}

} // namespace

void AddPart(PageFlow& flow, const BookDots& dots)
{
    const DotGrid grid{flow.Width()};
    flow.Add(grid.Height(), [grid, dots](QPainter& painter) { DrawDots(painter, grid, dots); });
}

double ChartHeight(const ChartData& chart, double width)
{
    constexpr std::size_t longLabel = 9; // From here on they are slanted.
    std::size_t longest = 0;
    for (int i = 1; i <= chart.ColumnCount(); ++i) {
        longest = std::max(longest, chart.ColumnLabel(i).size());
    }
    return width * (longest < longLabel ? 0.5 : 0.54);
}

void AddPart(PageFlow& flow, const ChartData& chart)
{
    constexpr double headless = 24; // A chart leaves room for its title.
    const double above = chart.TitleText.empty() ? headless : 0;
    const QRectF area(0, -above, flow.Width(), ChartHeight(chart, flow.Width()));
    flow.Skip(4);
    flow.Add(area.bottom(), [area, chart](QPainter& painter) { DrawChart(painter, area, chart); });
}

void AddPart(PageFlow& flow, const BookCurves& curves)
{
    constexpr double high = 0.6;
    const QRectF field(40, 8, flow.Width() - 40 - 36, flow.Width() * high);
    flow.Add(field.bottom() + 26, [field, curves](QPainter& painter) { DrawCurves(painter, field, curves); });
}

} // namespace zelvia
