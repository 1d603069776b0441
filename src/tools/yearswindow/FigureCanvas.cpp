// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/FigureCanvas.h"

#include "toolkit/ChartLabels.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Pixels.h"

#include <QFontMetricsF>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace zelvia
{
namespace
{

constexpr int kTitlePixels = 19;
constexpr int kKeyPixels = 16;   ///< The height of a line's sample in the legend.
constexpr int kTicks = 8;        ///< Numbers on the axis of values, about.
constexpr double kLeast = 0.001; ///< The stretch of what takes no more room than it needs.

const QColor kGrid(226, 215, 187);
const QColor kBand(26, 58, 140, 40);

void SetAxis(QCPAxis& axis, const QColor& ink)
{
    axis.setTickLabelFont(FigureFont());
    axis.setTickLabelColor(ink);
    axis.setTickPen(QPen(Ink::Edge));
    axis.setSubTicks(false);
    axis.setTickLabelPadding(kLabelGap);
    axis.grid()->setPen(QPen(kGrid, WholePixels(1, axis.parentPlot()->bufferDevicePixelRatio())));
    axis.grid()->setZeroLinePen(Qt::NoPen);
}

/// As many decimals as the steps from tick to tick have, so that each number is the one of its line.
int Decimals(QCPAxisTicker& ticker, const QCPRange& range, const QLocale& locale)
{
    QVector<double> ticks;
    ticker.generate(range, locale, QLatin1Char('f'), 0, ticks, nullptr, nullptr);
    constexpr int most = 3;
    constexpr double close = 1e-6;
    double step = ticks.size() > 1 ? ticks[1] - ticks[0] : 1;
    int decimals = 0;
    while (decimals < most && std::abs(step - std::round(step)) > close) {
        constexpr int base = 10;
        step *= base;
        ++decimals;
    }
    return decimals;
}

} // namespace

QFont FigureFont(int pixels)
{
    return PageFont("MS Sans Serif", pixels);
}

FigureCanvas::FigureCanvas(QWidget& parent) : plot(new QCustomPlot(&parent))
{
    plot->setFocusPolicy(Qt::NoFocus);
    plot->setAttribute(Qt::WA_TransparentForMouseEvents);
    plot->setBackground(QBrush(Ink::Paper));
    plot->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    plot->axisRect()->setBackground(QBrush(Ink::Slip));
    SetLeast(0);
    plot->setAutoAddPlottableToLegend(false);
    AddHead();
    SetAxis(*plot->xAxis, Ink::PrintDark);
    SetAxis(*plot->yAxis, Ink::Print);
    plot->xAxis->grid()->setVisible(false);
    plot->xAxis->setTickLength(0, 4);
    plot->xAxis->setBasePen(QPen(Ink::Print, 1.2));
    plot->yAxis->setBasePen(Qt::NoPen);
    plot->yAxis->setTickPen(Qt::NoPen);
    AddMarks();
}

/// The title, and below it the legend.
void FigureCanvas::AddHead()
{
    title = new QCPTextElement(plot, QString(), PageFont("Book Antiqua", kTitlePixels));
    title->setTextColor(Ink::PrintDark);
    title->setMargins({4, 8, 4, 2});
    auto& layout = *plot->plotLayout();
    layout.insertRow(0);
    layout.addElement(0, 0, title);
    auto* line = new QCPLayoutGrid;
    line->addElement(0, 0, new QCPLayoutElement(plot));
    line->addElement(0, 1, plot->legend);
    line->addElement(0, 2, new QCPLayoutElement(plot));
    line->setColumnStretchFactor(1, kLeast);
    layout.insertRow(1);
    layout.addElement(1, 0, line);
    layout.setRowStretchFactor(1, kLeast);
    layout.setRowSpacing(0);
    constexpr int inLine = 3;
    plot->legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    plot->legend->setWrap(inLine);
    plot->legend->setFont(FigureFont());
    plot->legend->setTextColor(Ink::PrintDark);
    plot->legend->setIconSize(26, kKeyPixels);
    plot->legend->setBorderPen(Qt::NoPen);
    plot->legend->setBrush(Qt::NoBrush);
}

void FigureCanvas::AddMarks()
{
    ring = new QCPItemTracer(plot);
    ring->setStyle(QCPItemTracer::tsCircle);
    ring->setPen(QPen(Ink::Accent, 2));
    ring->setSize(11);
    value = new QCPItemText(plot);
    value->setFont(FigureFont(13));
    value->setColor(Ink::PrintDark);
    value->setBrush(Ink::Slip);
    value->setPen(QPen(Ink::Edge));
    value->setPadding({kFigurePadding, 4, kFigurePadding, 4});
    value->setClipToAxisRect(false);
    value->position->setType(QCPItemPosition::ptAbsolute);
    value->position->setParentAnchor(ring->position);
    band = new QCPItemRect(plot);
    band->setPen(Qt::NoPen);
    band->setBrush(kBand);
    band->topLeft->setTypeY(QCPItemPosition::ptAxisRectRatio);
    band->bottomRight->setTypeY(QCPItemPosition::ptAxisRectRatio);
    for (QCPAbstractItem* item : std::initializer_list<QCPAbstractItem*>{ring, value, band}) {
        item->setLayer(QStringLiteral("overlay"));
        item->setVisible(false);
    }
}

void FigureCanvas::Clear()
{
    plot->legend->clearItems();
    plot->clearPlottables();
    plot->clearItems();
    AddMarks();
}

void FigureCanvas::FitTitle()
{
    constexpr int smallest = 11;
    constexpr int margins = 32;
    int pixels = kTitlePixels;
    while (pixels > smallest &&
           QFontMetricsF(PageFont("Book Antiqua", pixels)).horizontalAdvance(title->text()) > plot->width() - margins) {
        --pixels;
    }
    title->setFont(PageFont("Book Antiqua", pixels));
}

void FigureCanvas::SetLeast(int left)
{
    constexpr QMargins least(10, 4, 18, 8);
    plot->axisRect()->setMinimumMargins({std::max(left, least.left()), least.top(), least.right(), least.bottom()});
}

void FigureCanvas::SetValues(Measure measure, const QCPRange& range)
{
    QSharedPointer<QCPAxisTicker> ticker;
    if (measure == Measure::Pace) {
        const QSharedPointer<QCPAxisTickerTime> times(new QCPAxisTickerTime);
        times->setTimeFormat(QStringLiteral("%m:%s"));
        times->setFieldWidth(QCPAxisTickerTime::tuMinutes, 1);
        ticker = times;
    } else {
        ticker.reset(new QCPAxisTicker);
    }
    ticker->setTickCount(kTicks);
    plot->yAxis->setTicker(ticker);
    plot->yAxis->setNumberFormat(QStringLiteral("f"));
    plot->yAxis->setNumberPrecision(Decimals(*ticker, range, plot->locale()));
    plot->yAxis->setRange(range);
}

} // namespace zelvia
