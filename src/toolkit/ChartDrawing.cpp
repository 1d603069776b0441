// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Chart.h"
#include "toolkit/ChartLabels.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Pixels.h"
#include "toolkit/QtText.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPicture>

#include <algorithm>
#include <cmath>

// The library's header uses the keywords of Qt that this system is built without.
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
constexpr int kHeadHeight = 38; ///< Of the title and the legend.
constexpr int kMargin = 8;      ///< Left of the numbers of the axis, below the labels.
constexpr int kRight = 20;
constexpr int kLowestField = 60;     ///< However much the labels take.
constexpr int kAxisGap = 10;         ///< Between those numbers and the axis.
constexpr double kLabelShare = 0.45; ///< Of the height, for the labels under the points.
constexpr double kBarShare = 0.72;   ///< Of the way from one bar to the next.
constexpr double kWidestBar = 90;

const QColor kGrid(226, 215, 187);
const QColor kWashTop(96, 124, 190);
const QColor kWashBottom(148, 168, 214);

QFont TextFont(int pixels)
{
    return PageFont("MS Sans Serif", pixels);
}

QLocale Italian()
{
    return {QLocale::Italian, QLocale::Italy};
}

/// What a chart shows.
struct Points {
    explicit Points(const ChartData& data) : bars(data.chartType == ChartType::Bars)
    {
        const int count = bars ? data.ColumnCount() : data.RowCount();
        for (int i = 1; i <= count; ++i) {
            places << i;
            values << (bars ? data.Data(1, i) : data.Data(i, 1));
            labels << ToQString(bars ? data.ColumnLabel(i) : data.RowLabel(i));
        }
    }

    QCPRange PlaceRange() const { return {0.5, std::max(1.0, static_cast<double>(places.size())) + 0.5}; }

    /// From 0 on for bars, with room above the highest for its count.
    QCPRange ValueRange() const
    {
        if (values.isEmpty()) {
            return {0, 1};
        }
        const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
        if (bars) {
            return {0, std::max(1.0, *highest) * 1.12};
        }
        const double pad = std::max(*highest - *lowest, 0.1) * 0.06;
        return {*lowest - pad, *highest + pad};
    }

    int Decimals() const { return bars ? 0 : 2; }

    /// The room for the numbers of the axis of values.
    int LeftMargin() const
    {
        const QString longest = Italian().toString(ValueRange().upper, 'f', Decimals());
        return kMargin + QFontMetrics(TextFont(kTextPixels)).horizontalAdvance(longest) + kAxisGap;
    }

    bool bars;
    QVector<double> places; ///< 1, 2, 3...
    QVector<double> values;
    QStringList labels;
};

/// The size to draw a chart at, in logical pixels, the step from one point to the next, and its labels.
struct Layout {
    QSize size;
    double step = 0;
    LabelStyle labels;

    bool Fits() const { return kHeadHeight + kLowestField + labels.height + kMargin <= size.height(); }
};

/// A chart whose labels leave too little of its field is laid out larger, and then scaled down.
Layout LayoutFor(const Points& points, const QSizeF& area)
{
    constexpr double largest = 4;
    const int left = points.LeftMargin();
    for (double scale = 1;; scale *= 1.05) {
        Layout layout;
        layout.size = (area * scale).toSize();
        layout.step = (layout.size.width() - left - kRight) / points.PlaceRange().size();
        layout.labels =
            StyleOf(points.labels, {layout.step, left + layout.step / 2, kLabelShare * layout.size.height()});
        if (layout.Fits() || scale > largest) {
            return layout;
        }
    }
}

/// A chart about to be drawn.
class Drawing
{
public:
    Drawing(const ChartData& data, const QSizeF& area) : data_(data), points_(data), layout_(LayoutFor(points_, area))
    {
        plot_.setBackground(Qt::NoBrush);
        plot_.setLocale(Italian());
        plot_.plotLayout()->setAutoMargins(QCP::msNone);
        plot_.plotLayout()->setMargins({0, 0, 0, kMargin});
        plot_.axisRect()->setBackground(QBrush(Ink::Slip));
        plot_.axisRect()->setAutoMargins(QCP::msBottom);
        plot_.axisRect()->setMargins({points_.LeftMargin(), 0, kRight, 0});
        AddHead();
        SetValueAxis();
        AddLabels();
        points_.bars ? AddBars() : AddLine();
    }

    /// Draws into a picture, since the library needs its own kind of painter; any painter can play a picture.
    void Draw(QPainter& painter, const QRectF& area)
    {
        const double scale = area.width() / layout_.size.width();
        const double pixels = painter.deviceTransform().m11() * scale;
        plot_.yAxis->grid()->setPen(QPen(kGrid, WholePixels(1, pixels)));
        QPicture picture;
        QCPPainter recorder(&picture);
        plot_.toPainter(&recorder, layout_.size.width(), layout_.size.height());
        recorder.end();
        // Playing it scales it by the device's resolution; the painter is already scaled.
        const QPaintDevice& device = *painter.device();
        painter.save();
        painter.translate(area.topLeft());
        painter.scale(scale * picture.logicalDpiX() / device.logicalDpiX(),
                      scale * picture.logicalDpiY() / device.logicalDpiY());
        painter.drawPicture(0, 0, picture);
        painter.restore();
    }

private:
    /// The title in the middle, the legend at the right, above the chart.
    void AddHead()
    {
        auto* head = new QCPLayoutInset;
        head->setMinimumSize(0, kHeadHeight);
        head->setMaximumSize(QWIDGETSIZE_MAX, kHeadHeight);
        head->setAutoMargins(QCP::msNone);
        head->setMargins({kRight, 0, kRight, 0});
        auto* title = new QCPTextElement(&plot_, ToQString(data_.TitleText), PageFont("Book Antiqua", kTitlePixels));
        title->setTextColor(Ink::PrintDark);
        head->addElement(title, Qt::AlignCenter);
        plot_.legend->setFont(TextFont(kTextPixels));
        plot_.legend->setTextColor(Ink::PrintDark);
        plot_.legend->setIconSize(26, kTextPixels);
        plot_.legend->setBorderPen(Qt::NoPen);
        plot_.legend->setBrush(Qt::NoBrush);
        head->addElement(plot_.legend, Qt::AlignRight | Qt::AlignBottom);
        plot_.plotLayout()->insertRow(0);
        plot_.plotLayout()->addElement(0, 0, head);
    }

    void SetValueAxis()
    {
        QCPAxis& axis = *plot_.yAxis;
        axis.setRange(points_.ValueRange());
        // Whole counts, or hundredths; or the round multiples of these that give about as many numbers as wished.
        const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
        ticker->setTickStep(points_.bars ? 1 : 0.01);
        ticker->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
        ticker->setTickCount(8);
        axis.setTicker(ticker);
        axis.setNumberFormat(QStringLiteral("f"));
        axis.setNumberPrecision(points_.Decimals());
        axis.setSubTicks(false);
        axis.setTickLabelFont(TextFont(kTextPixels));
        axis.setTickLabelColor(Ink::Print);
        axis.setTickLabelPadding(kAxisGap);
        axis.setBasePen(Qt::NoPen);
        axis.setTickPen(Qt::NoPen);
        axis.grid()->setZeroLinePen(Qt::NoPen);
    }

    /// One axis for each row of labels, one below the other.
    void AddLabels()
    {
        plot_.xAxis->grid()->setVisible(false);
        const LabelStyle& style = layout_.labels;
        for (int row = 0; row < style.rows; ++row) {
            QCPAxis& axis = row == 0 ? *plot_.xAxis : *plot_.axisRect()->addAxis(QCPAxis::atBottom);
            const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
            for (qsizetype i = row; i < style.texts.size(); i += style.rows) {
                ticker->addTick(points_.places[i], style.texts[i]);
            }
            axis.setTicker(ticker);
            axis.setRange(points_.PlaceRange());
            axis.setTickLength(1); // one of length 0 is drawn as a dot
            axis.setTickPen(Qt::NoPen);
            axis.setTickLabelFont(style.font);
            axis.setTickLabelColor(Ink::PrintDark);
            axis.setTickLabelRotation(style.rotation);
            axis.setTickLabelPadding(kLabelGap);
            axis.setPadding(0);
            axis.setBasePen(row == 0 ? QPen(Ink::Print, 1.2) : QPen(Qt::NoPen));
        }
    }

    void AddBars()
    {
        auto* bars = new QCPBars(plot_.xAxis, plot_.yAxis);
        bars->setWidth(std::min(kBarShare, kWidestBar / layout_.step));
        QLinearGradient wash(0, 0, 0, layout_.size.height());
        wash.setColorAt(0, kWashTop);
        wash.setColorAt(1, kWashBottom);
        bars->setBrush(wash);
        bars->setPen(QPen(Ink::Pen, 1));
        bars->setData(points_.places, points_.values, true);
        AddCounts();
    }

    /// The count over each bar, in the largest type in which all of them fit, or none.
    void AddCounts()
    {
        QStringList counts;
        for (const double value : points_.values) {
            counts << QString::number(value, 'f', 0);
        }
        for (int pixels = kTextPixels; pixels >= kSmallestLabel; --pixels) {
            const QFontMetricsF metrics(TextFont(pixels));
            if (std::all_of(counts.begin(), counts.end(), [&](const QString& count) {
                    return metrics.horizontalAdvance(count) + 1 <= layout_.step;
                })) {
                AddCounts(counts, TextFont(pixels));
                return;
            }
        }
    }

    void AddCounts(const QStringList& counts, const QFont& font)
    {
        for (qsizetype i = 0; i < counts.size(); ++i) {
            auto* count = new QCPItemText(&plot_);
            count->setText(counts[i]);
            count->setFont(font);
            count->setColor(Ink::Pen);
            count->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
            count->position->setCoords(points_.places[i], points_.values[i]);
        }
    }

    /// In stretches of a few points: the rasteriser takes five times as long over one stroke of 350 steep pieces.
    void AddLine()
    {
        constexpr qsizetype stretch = 4;
        plot_.setAutoAddPlottableToLegend(false);
        for (qsizetype first = 0; first == 0 || first + 1 < points_.values.size(); first += stretch) {
            AddStretch(first, stretch + 1);
        }
        plot_.graph(0)->addToLegend();
        plot_.legend->setVisible(!points_.values.isEmpty());
    }

    void AddStretch(qsizetype first, qsizetype count)
    {
        QCPGraph& line = *plot_.addGraph();
        const double disc = std::clamp(layout_.step * 0.6, 2.0, 7.0);
        const QPen ring(Ink::Accent, disc > 4 ? 1.4 : 0.8);
        line.setName(ToQString(data_.ColumnLabel(1)));
        line.setPen(QPen(Ink::Pen, layout_.step > 6 ? 1.8 : 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        line.setScatterStyle({QCPScatterStyle::ssCircle, ring, disc > 4 ? Ink::Slip : Ink::Accent, disc});
        line.setData(points_.places.mid(first, count), points_.values.mid(first, count), true);
    }

    const ChartData& data_;
    Points points_;
    Layout layout_;
    QCustomPlot plot_;
};

} // namespace

void DrawChart(QPainter& painter, const QRectF& area, const ChartData& data)
{
    Drawing(data, area.size()).Draw(painter, area);
}

} // namespace zelvia
