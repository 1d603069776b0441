// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/FigurePlot.h"

#include "toolkit/PagePalette.h"
#include "tools/yearswindow/FigureCanvas.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kBetween = 10;        ///< Between two labels of an axis, at least.
constexpr double kBarShare = 0.72;  ///< Of the way from one bar to the next.
constexpr double kLabelShare = 0.4; ///< Of the height, for names under the points.
constexpr int kSlantMargin = 72;    ///< At the left of the field, for slanted names, which are not drawn when cut off.
constexpr double kUpright = -90;

const QColor kWashTop(96, 124, 190);
const QColor kWashBottom(148, 168, 214);

/// The inks of lines, all of them 3:1 or more on the slip.
const std::array<QColor, 6> kInks = {Ink::Pen,           Ink::Accent,          QColor(38, 108, 58),
                                     QColor(150, 92, 0), QColor(112, 56, 136), QColor(0, 110, 120)};

/// The places of a series' points, and their values.
std::pair<QVector<double>, QVector<double>> Coordinates(const FigureSeries& series)
{
    std::pair<QVector<double>, QVector<double>> coordinates;
    for (const FigurePoint& point : series.points) {
        coordinates.first << point.place;
        coordinates.second << point.value;
    }
    return coordinates;
}

} // namespace

FigurePlot::FigurePlot(QWidget& parent) : drawn_(std::make_unique<FigureCanvas>(parent))
{
    Show({});
}

FigurePlot::~FigurePlot() = default;

void FigurePlot::Show(const Figure& figure)
{
    figure_ = figure;
    mark_.reset();
    QCustomPlot& plot = *drawn_->plot;
    drawn_->Clear();
    drawn_->title->setText(figure.title);
    std::size_t inks = 0;
    const auto add = [&](const FigureSeries& series) {
        switch (series.look) {
        case FigureSeries::Look::Bars: ++inks; return AddBars(series);
        case FigureSeries::Look::Faint: return AddLine(series, Ink::Pencil);
        case FigureSeries::Look::Steady: return AddLine(series, Ink::PrintDark);
        case FigureSeries::Look::Line:
        case FigureSeries::Look::Points: return AddLine(series, kInks[inks++ % kInks.size()]);
        }
    };
    // What is faint lies below the rest.
    for (const bool faint : {true, false}) {
        for (const FigureSeries& series : figure.series) {
            if ((series.look == FigureSeries::Look::Faint) == faint) {
                add(series);
            }
        }
    }
    plot.legend->setVisible(plot.legend->itemCount() > 1);
    SetSpan(Whole());
}

void FigurePlot::AddBars(const FigureSeries& series)
{
    auto* bars = new QCPBars(drawn_->plot->xAxis, drawn_->plot->yAxis);
    bars->setName(series.name);
    bars->setWidth(kBarShare);
    QLinearGradient wash(0, 0, 0, 1);
    wash.setCoordinateMode(QGradient::ObjectMode);
    wash.setColorAt(0, kWashTop);
    wash.setColorAt(1, kWashBottom);
    bars->setBrush(wash);
    bars->setPen(QPen(Ink::Pen, 1));
    const auto [places, values] = Coordinates(series);
    bars->setData(places, values, true);
    bars->addToLegend();
}

void FigurePlot::AddLine(const FigureSeries& series, const QColor& ink)
{
    QCustomPlot& plot = *drawn_->plot;
    const bool faint = series.look == FigureSeries::Look::Faint;
    const bool steady = series.look == FigureSeries::Look::Steady;
    const bool alone = series.look == FigureSeries::Look::Points;
    const Qt::PenStyle stroke = alone ? Qt::NoPen : steady ? Qt::DashLine : Qt::SolidLine;
    const QPen pen(ink, faint ? 1 : 1.8, stroke, Qt::RoundCap, Qt::RoundJoin);
    constexpr qsizetype few = 80; // Points that are each drawn as one.
    const bool discs = alone || (!faint && !steady && series.points.size() <= few);
    const QCPScatterStyle scatter(QCPScatterStyle::ssCircle, QPen(ink, 1.4), alone ? ink : Ink::Slip, alone ? 9 : 7);
    constexpr double longest = 160; // In the legend.
    const QString name = QFontMetricsF(FigureFont()).elidedText(series.name, Qt::ElideRight, longest);
    const auto [places, values] = Coordinates(series);
    // In stretches: the rasteriser takes many times as long over one stroke of hundreds of steep pieces. A dashed line
    // is straight.
    const qsizetype stretch = steady ? std::max<qsizetype>(values.size(), 1) : 4;
    for (qsizetype first = 0; first == 0 || first + 1 < values.size(); first += stretch) {
        auto* line = new QCPGraph(plot.xAxis, plot.yAxis);
        line->setName(name);
        line->setPen(pen);
        line->setScatterStyle(discs ? scatter : QCPScatterStyle());
        line->setData(places.mid(first, stretch + 1), values.mid(first, stretch + 1), true);
        if (first == 0 && !faint) {
            line->addToLegend();
        }
    }
}

void FigurePlot::SetGeometry(const QRect& place)
{
    drawn_->plot->setGeometry(place);
    FitToSpan();
}

FigureSpan FigurePlot::Whole() const
{
    FigureSpan whole{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
    bool bars = figure_.named;
    for (const FigureSeries& series : figure_.series) {
        bars = bars || series.look == FigureSeries::Look::Bars;
        for (const FigurePoint& point : series.points) {
            whole = {std::min(whole.from, point.place), std::max(whole.to, point.place)};
        }
    }
    if (whole.to < whole.from) {
        return {0.5, 1.5};
    }
    constexpr double share = 0.02;
    const double room = bars ? 0.6 : std::max(share * whole.Width(), 0.5);
    return {whole.from - room, whole.to + room};
}

void FigurePlot::SetSpan(const FigureSpan& span)
{
    span_ = span;
    FitToSpan();
}

void FigurePlot::FitToSpan()
{
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();
    bool bars = false;
    for (const FigureSeries& series : figure_.series) {
        bars = bars || series.look == FigureSeries::Look::Bars;
        for (const FigurePoint& point : series.points) {
            if (IsShown(point)) {
                lowest = std::min(lowest, point.value);
                highest = std::max(highest, point.value);
            }
        }
    }
    QCPRange range(0, 1);
    if (lowest <= highest) {
        constexpr double above = 1.08;
        constexpr double share = 0.08;
        const double room = std::max(highest - lowest, 1.0) * share;
        // The length of a bar is what it says.
        const bool fromZero = figure_.measure == Measure::Kilometres && (bars || lowest * 2 < highest);
        const bool nothing = figure_.measure == Measure::Kilometres && highest == 0;
        range = nothing    ? QCPRange(0, 1)
                : fromZero ? QCPRange(0, highest * above)
                           : QCPRange(lowest - room, highest + room);
    }
    drawn_->plot->xAxis->setRange(span_.from, span_.to);
    drawn_->SetValues(figure_.measure, range);
    LayTicks();
    // At once, so that pixels and places agree; only the screen follows later.
    drawn_->plot->replot(QCustomPlot::rpQueuedRefresh);
}

void FigurePlot::LayTicks()
{
    QList<FigureTick> shown;
    for (const FigureTick& tick : figure_.ticks) {
        if (tick.place >= span_.from && tick.place <= span_.to) {
            shown << tick;
        }
    }
    drawn_->FitTitle();
    const LabelStyle style = StyleOfTicks(shown);
    const bool slanted = style.rotation < 0 && style.rotation > kUpright;
    drawn_->SetLeast(slanted ? kSlantMargin : 0);
    QCPAxis& axis = *drawn_->plot->xAxis;
    axis.setTickLabelFont(style.font);
    axis.setTickLabelRotation(style.rotation);
    const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    // Counted from the first of all, so that every twelfth month is a January wherever the stretch begins.
    const auto first = std::find_if(figure_.ticks.begin(), figure_.ticks.end(),
                                    [&](const FigureTick& tick) { return tick.place >= span_.from; }) -
                       figure_.ticks.begin();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if ((first + i) % style.rows == 0) {
            ticker->addTick(shown[i].place, style.texts[i]);
        }
    }
    axis.setTicker(ticker);
}

/// How the labels of some ticks are written, and in `rows` how many ticks it is from one that is labelled to the next:
/// of names each that can be read, of others every so many.
LabelStyle FigurePlot::StyleOfTicks(const QList<FigureTick>& shown) const
{
    const QFontMetricsF metrics(FigureFont());
    QStringList labels;
    double widest = 1;
    for (const FigureTick& tick : shown) {
        labels << tick.label;
        widest = std::max(widest, metrics.horizontalAdvance(tick.label));
    }
    constexpr double margins = 90;
    const double width = std::max(drawn_->plot->width() - margins, 1.0);
    const double step = width * (shown.size() > 1 ? shown[1].place - shown[0].place : 1) / span_.Width();
    if (figure_.named && !labels.isEmpty()) {
        const double first = width * (shown.front().place - span_.from) / span_.Width();
        return StyleOf(labels, {step, kSlantMargin + first, kLabelShare * drawn_->plot->height()});
    }
    constexpr int steps[] = {1, 2, 3, 6, 12, 24, 36, 60, 120};
    const int every = *std::find_if(std::begin(steps), std::end(steps) - 1,
                                    [&](int count) { return count * step >= widest + kBetween; });
    return {labels, FigureFont(), 0, every, metrics.height()};
}

void FigurePlot::Mark(std::optional<FigurePlace> place, const QString& text)
{
    if (!place && !mark_) {
        return;
    }
    mark_ = place;
    drawn_->ring->setVisible(place.has_value());
    drawn_->value->setVisible(place.has_value());
    if (place) {
        const FigurePoint& point = figure_.series[place->series].points[place->point];
        drawn_->ring->position->setCoords(point.place, point.value);
        drawn_->value->setText(text);
        const QPointF pixel = drawn_->ring->position->pixelPosition();
        const QRect field = drawn_->plot->axisRect()->rect();
        // Beside the point, above or below it where there is more room, and within the figure.
        constexpr double away = 12;
        const double width = QFontMetricsF(drawn_->value->font()).horizontalAdvance(text) + 2 * kFigurePadding;
        const double left = std::max<double>(std::min(pixel.x() + away, field.right() - width), field.left());
        const bool above = pixel.y() > field.center().y();
        drawn_->value->setPositionAlignment(Qt::AlignLeft | (above ? Qt::AlignBottom : Qt::AlignTop));
        drawn_->value->position->setCoords(left - pixel.x(), above ? -away : away);
    }
    drawn_->plot->replot(QCustomPlot::rpQueuedReplot);
}

void FigurePlot::SetBand(std::optional<FigureSpan> band)
{
    drawn_->band->setVisible(band.has_value());
    if (band) {
        drawn_->band->topLeft->setCoords(band->from, 0);
        drawn_->band->bottomRight->setCoords(band->to, 1);
    }
    drawn_->plot->replot(QCustomPlot::rpQueuedReplot);
}

QRect FigurePlot::Field() const
{
    return drawn_->plot->axisRect()->rect().translated(drawn_->plot->pos());
}

double FigurePlot::PlaceAt(double x) const
{
    return drawn_->plot->xAxis->pixelToCoord(x - drawn_->plot->x());
}

QPointF FigurePlot::PixelOf(FigurePlace place) const
{
    const FigurePoint& point = figure_.series[place.series].points[place.point];
    return QPointF(drawn_->plot->xAxis->coordToPixel(point.place), drawn_->plot->yAxis->coordToPixel(point.value)) +
           drawn_->plot->pos();
}

std::optional<FigurePlace> FigurePlot::Nearest(const QPointF& pixel) const
{
    std::optional<FigurePlace> nearest;
    double least = std::numeric_limits<double>::max();
    for (int series = 0; series < figure_.series.size(); ++series) {
        const QList<FigurePoint>& points = figure_.series[series].points;
        // Of each series the one that is closest along the figure, of these the one that is closest at all.
        int best = -1;
        for (int i = 0; i < points.size(); ++i) {
            const auto away = [&](int point) { return std::abs(points[point].place - PlaceAt(pixel.x())); };
            if (IsShown(points[i]) && (best < 0 || away(i) < away(best))) {
                best = i;
            }
        }
        if (best >= 0) {
            const QPointF offset = PixelOf({series, best}) - pixel;
            const double away = std::hypot(offset.x(), offset.y());
            if (away < least) {
                least = away;
                nearest = FigurePlace{series, best};
            }
        }
    }
    return nearest;
}

QImage FigurePlot::Picture(const QSize& size)
{
    constexpr int scale = 2;
    constexpr double perMetre = 96 / 0.0254;
    QCustomPlot& plot = *drawn_->plot;
    const bool marked = drawn_->value->visible();
    drawn_->ring->setVisible(false);
    drawn_->value->setVisible(false);
    const QRect place = plot.geometry();
    plot.setGeometry(QRect(place.topLeft(), size));
    LayTicks();
    plot.setBackground(QBrush(Qt::white));
    QImage picture = plot.toPixmap(size.width(), size.height(), scale).toImage();
    plot.setBackground(QBrush(Ink::Paper));
    drawn_->ring->setVisible(marked);
    drawn_->value->setVisible(marked);
    plot.setGeometry(place);
    FitToSpan();
    picture.setDevicePixelRatio(1);
    picture.setDotsPerMeterX(qRound(perMetre * scale));
    picture.setDotsPerMeterY(qRound(perMetre * scale));
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace zelvia
