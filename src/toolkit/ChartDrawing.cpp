// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ChartDrawing.h"

#include "core/Conversions.h"
#include "toolkit/ChartLabels.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPicture>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

// The header of the library is written with the short words that this system's sources do without.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#define foreach Q_FOREACH
#include <qcustomplot.h>
#undef signals
#undef slots
#undef foreach

namespace zelvia
{
namespace
{

// Places, in logical pixels.
constexpr int kTitlePixels = 19; ///< 14 points at 96 to the inch.
constexpr int kTextPixels = 12;
constexpr double kTitleHeight = 42;
constexpr double kMargin = 10;
constexpr double kAxisGap = 10;      ///< Between the numbers of the axis and the field.
constexpr double kLabelShare = 0.45; ///< Of the height, for the labels under the points.
constexpr double kBarShare = 0.72;   ///< Of the way from one bar to the next.
constexpr double kWidestBar = 90;
constexpr int kWishedSteps = 8; ///< Of the axis.

const QColor kGrid(226, 215, 187);
const QColor kWashTop(96, 124, 190);
const QColor kWashBottom(148, 168, 214);

/// The smallest of 1, 2, 5 times a power of ten that is not below `least`.
double RoundStep(double least)
{
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1 - 1e-9)) {
            return factor * power;
        }
    }
    return 10 * power;
}

/// The axis of the values: its ends, the distance of its numbers, and their decimals.
struct ValueAxis {
    double lower;
    double upper;
    double step;
    int decimals;

    QString Written(double number) const
    {
        QLocale italian(QLocale::Italian, QLocale::Italy);
        return italian.toString(number, 'f', decimals);
    }
};

ValueAxis AxisOf(const ChartData& data, std::span<const double> values)
{
    const double highest = values.empty() ? 1 : *std::max_element(values.begin(), values.end());
    if (data.chartType == ChartType::Bars) {
        // Counts: whole numbers from 0 on, with room over the highest bar for its own.
        const double upper = std::max(highest, 1.0) * 1.12;
        return {0, upper, std::max(1.0, RoundStep(upper / kWishedSteps)), 0};
    }
    const double lowest = values.empty() ? 0 : *std::min_element(values.begin(), values.end());
    const double spread = std::max(highest - lowest, 0.1);
    const double pad = spread * 0.06;
    constexpr double finest = 0.01;
    const double step = std::max(finest, RoundStep((spread + 2 * pad) / kWishedSteps));
    return {lowest - pad, highest + pad, step, 2};
}

/// One chart about to be drawn.
class Drawing
{
public:
    Drawing(QPainter& painter, const QRectF& area, const ChartData& data)
        : painter_(painter), area_(area), data_(data), bars_(data.chartType == ChartType::Bars)
    {
        const int points = bars_ ? data.ColumnCount() : data.RowCount();
        for (int i = 1; i <= points; ++i) {
            values_.push_back(bars_ ? data.Data(1, i) : data.Data(i, 1));
            names_ << ToQString(bars_ ? data.ColumnLabel(i) : data.RowLabel(i));
        }
        axis_ = AxisOf(data, values_);
        PlaceField();
    }

    void Draw()
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
        DrawTitle();
        DrawPlot();
        DrawNumbers();
        DrawLabels();
        if (bars_) {
            DrawCounts();
        } else if (!values_.empty()) {
            DrawSeriesName();
        }
        painter_.restore();
    }

private:
    static QFont TextFont(int pixels) { return PageFont("MS Sans Serif", pixels); }

    /// What the discs of a line want at both ends of the field.
    double Edge() const { return bars_ ? 0 : 6; }
    double Step() const
    {
        return (field_.width() - 2 * Edge()) / std::max<double>(1, static_cast<double>(values_.size()));
    }
    double X(std::size_t index) const { return field_.left() + Edge() + (static_cast<double>(index) + 0.5) * Step(); }
    double Y(double value) const
    {
        return field_.bottom() - (value - axis_.lower) / (axis_.upper - axis_.lower) * field_.height();
    }

    /// The numbers of the axis, from its first on.
    template <typename Act>
    void ForEachNumber(Act&& act) const
    {
        for (double n = std::ceil(axis_.lower / axis_.step - 1e-9); n * axis_.step <= axis_.upper; ++n) {
            // A line of paces has no number below 0.
            if (n >= 0) {
                act(n * axis_.step);
            }
        }
    }

    void PlaceField()
    {
        const QFontMetricsF metrics(TextFont(kTextPixels));
        double widest = 0;
        ForEachNumber(
            [&](double number) { widest = std::max(widest, metrics.horizontalAdvance(axis_.Written(number))); });
        field_ = area_.adjusted(kMargin + widest + kAxisGap, kTitleHeight, -2 * kMargin, 0);
        const double left = X(0) - area_.left();
        labels_.emplace(names_, ChartLabels::Room{Step(), left, area_.height() * kLabelShare});
        // However much the labels take, something of the field is left.
        constexpr double lowestField = 40;
        field_.setBottom(std::max(field_.top() + lowestField, area_.bottom() - kMargin - labels_->Height()));
    }

    void DrawTitle()
    {
        painter_.setFont(PageFont("Book Antiqua", kTitlePixels));
        painter_.setPen(Ink::PrintDark);
        painter_.drawText(QRectF(area_.left(), area_.top(), area_.width(), kTitleHeight), Qt::AlignCenter,
                          ToQString(data_.TitleText));
    }

    /// Field, grid and values, by the library; it draws into a picture, which any painter can play.
    void DrawPlot()
    {
        QCustomPlot plot;
        plot.setBackground(Qt::NoBrush);
        const QRect whole(0, 0, static_cast<int>(std::lround(area_.width())),
                          static_cast<int>(std::lround(area_.height())));
        plot.setViewport(whole);
        plot.axisRect()->setAutoMargins(QCP::msNone);
        plot.plotLayout()->setRowSpacing(0);
        SetMargins(plot, whole);
        plot.axisRect()->setBackground(QBrush(Ink::Slip));
        SetAxes(plot);
        bars_ ? AddBars(plot) : AddLine(plot);

        QPicture picture;
        QCPPainter recorder(&picture);
        plot.toPainter(&recorder, whole.width(), whole.height());
        recorder.end();
        painter_.save();
        painter_.translate(area_.topLeft());
        // Playing it sizes the picture by the dots of the device; the painter has its scale already.
        const QPaintDevice& device = *painter_.device();
        painter_.scale(static_cast<double>(picture.logicalDpiX()) / device.logicalDpiX(),
                       static_cast<double>(picture.logicalDpiY()) / device.logicalDpiY());
        painter_.drawPicture(0, 0, picture);
        painter_.restore();
    }

    void SetMargins(QCustomPlot& plot, const QRect& whole)
    {
        const QRect inner = field_.translated(-area_.topLeft()).toRect();
        plot.axisRect()->setMargins(
            {inner.left(), inner.top(), whole.right() - inner.right(), whole.bottom() - inner.bottom()});
        // On whole pixels, where the library puts it.
        field_ = QRectF(inner).translated(area_.topLeft());
    }

    void SetAxes(QCustomPlot& plot)
    {
        const double end = std::max<double>(1, static_cast<double>(values_.size())) + 0.5;
        plot.xAxis->setRange(0.5 - Edge() / Step(), end + Edge() / Step());
        plot.yAxis->setRange(axis_.lower, axis_.upper);
        const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
        ticker->setTickStep(axis_.step);
        ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
        plot.yAxis->setTicker(ticker);
        for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) {
            axis->setTicks(false);
            axis->setTickLabels(false);
            axis->setPadding(0);
            axis->setBasePen(axis == plot.xAxis ? QPen(Ink::Print, 1.2) : QPen(Qt::NoPen));
        }
        // The grid stands at the ticks, seen or not.
        plot.yAxis->setTicks(true);
        plot.yAxis->setTickPen(Qt::NoPen);
        plot.yAxis->setSubTicks(false);
        plot.yAxis->grid()->setPen(QPen(kGrid, 1));
        plot.yAxis->grid()->setZeroLinePen(Qt::NoPen);
        plot.xAxis->grid()->setVisible(false);
    }

    void AddBars(QCustomPlot& plot)
    {
        auto* bars = new QCPBars(plot.xAxis, plot.yAxis);
        bars->setWidth(std::min(kBarShare, kWidestBar / Step()));
        QLinearGradient wash(0, field_.top() - area_.top(), 0, field_.bottom() - area_.top());
        wash.setColorAt(0, kWashTop);
        wash.setColorAt(1, kWashBottom);
        bars->setBrush(wash);
        bars->setPen(QPen(Ink::Pen, 1));
        for (std::size_t i = 0; i < values_.size(); ++i) {
            bars->addData(static_cast<double>(i + 1), values_[i]);
        }
    }

    void AddLine(QCustomPlot& plot)
    {
        // In stretches: one stroke of hundreds of steep pieces costs the rasteriser the square of their number.
        constexpr std::size_t stretch = 4;
        const double step = Step();
        const QPen pen(Ink::Pen, step > 6 ? 1.8 : 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        for (std::size_t first = 0; first + 1 < values_.size(); first += stretch) {
            QCPGraph& line = AddPoints(plot, first, std::min(first + stretch + 1, values_.size()));
            line.setPen(pen);
        }
        QCPGraph& discs = AddPoints(plot, 0, values_.size());
        const double width = std::clamp(step * 0.6, 2.0, 7.0);
        const QPen ring(Ink::Accent, width > 4 ? 1.4 : 0.8);
        discs.setLineStyle(QCPGraph::lsNone);
        discs.setScatterStyle({QCPScatterStyle::ssCircle, ring, width > 4 ? Ink::Slip : Ink::Accent, width});
    }

    QCPGraph& AddPoints(QCustomPlot& plot, std::size_t from, std::size_t to)
    {
        QCPGraph& graph = *plot.addGraph();
        graph.setAdaptiveSampling(false);
        for (std::size_t i = from; i < to; ++i) {
            graph.addData(static_cast<double>(i + 1), values_[i]);
        }
        return graph;
    }

    void DrawNumbers()
    {
        painter_.setFont(TextFont(kTextPixels));
        painter_.setPen(Ink::Print);
        const QFontMetricsF metrics(painter_.font());
        ForEachNumber([&](double number) {
            const QString written = axis_.Written(number);
            painter_.drawText(QPointF(field_.left() - kAxisGap - metrics.horizontalAdvance(written),
                                      Y(number) + metrics.capHeight() / 2),
                              written);
        });
    }

    void DrawLabels()
    {
        painter_.setPen(Ink::PrintDark);
        for (std::size_t i = 0; i < values_.size(); ++i) {
            labels_->Draw(painter_, static_cast<qsizetype>(i), {X(i), field_.bottom()});
        }
    }

    /// The count over each bar, where all of them find room.
    void DrawCounts()
    {
        QStringList counts;
        for (const double value : values_) {
            counts << QString::number(value, 'f', 0);
        }
        for (int pixels = kTextPixels; pixels >= ChartLabels::kSmallest; --pixels) {
            const QFont font = TextFont(pixels);
            const QFontMetricsF metrics(font);
            const bool fits = std::all_of(counts.begin(), counts.end(), [&](const QString& count) {
                return metrics.horizontalAdvance(count) + 1 <= Step();
            });
            if (!fits) {
                continue;
            }
            constexpr double lift = 4;
            painter_.setFont(font);
            painter_.setPen(Ink::Pen);
            for (std::size_t i = 0; i < values_.size(); ++i) {
                const QString& count = counts[static_cast<qsizetype>(i)];
                painter_.drawText(QPointF(X(i) - metrics.horizontalAdvance(count) / 2, Y(values_[i]) - lift), count);
            }
            return;
        }
    }

    /// The name of the line over the right end of the field.
    void DrawSeriesName()
    {
        const QString name = ToQString(data_.ColumnLabel(1));
        painter_.setFont(TextFont(kTextPixels));
        const QFontMetricsF metrics(painter_.font());
        constexpr double sample = 26;
        constexpr double gap = 6;
        const double baseline = field_.top() - 10;
        const double left = field_.right() - metrics.horizontalAdvance(name);
        painter_.setPen(QPen(Ink::Pen, 1.8));
        const double middle = baseline - metrics.xHeight() / 2;
        painter_.drawLine(QPointF(left - gap - sample, middle), QPointF(left - gap, middle));
        painter_.setPen(QPen(Ink::Accent, 1.4));
        painter_.setBrush(Ink::Slip);
        painter_.drawEllipse(QPointF(left - gap - sample / 2, middle), 3, 3);
        painter_.setPen(Ink::PrintDark);
        painter_.drawText(QPointF(left, baseline), name);
    }

    QPainter& painter_;
    QRectF area_;
    const ChartData& data_;
    bool bars_;
    std::vector<double> values_;
    QStringList names_;
    ValueAxis axis_{};
    QRectF field_; ///< Where the values stand.
    std::optional<ChartLabels> labels_;
};

} // namespace

void DrawChart(QPainter& painter, const QRectF& area, const ChartData& data)
{
    Drawing(painter, area, data).Draw();
}

} // namespace zelvia
