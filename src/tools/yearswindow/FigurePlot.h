// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/ChartLabels.h"
#include "tools/yearswindow/Figure.h"

#include <QImage>
#include <QWidget>

#include <memory>
#include <optional>

namespace zelvia
{

struct FigureCanvas;

/// A stretch along a figure.
struct FigureSpan {
    double from = 0;
    double to = 1;

    double Width() const { return to - from; }
};

/// A point by its series and its number, both from 0 on.
struct FigurePlace {
    int series = 0;
    int point = 0;

    friend bool operator==(const FigurePlace&, const FigurePlace&) = default;
};

/// Draws a figure, in the inks of the program's charts. It takes no input.
class FigurePlot
{
public:
    explicit FigurePlot(QWidget& parent);
    ~FigurePlot();
    FigurePlot(const FigurePlot&) = delete;
    FigurePlot& operator=(const FigurePlot&) = delete;

    void Show(const Figure& figure);
    void SetGeometry(const QRect& place);

    /// The stretch that holds all points, with some room around them.
    FigureSpan Whole() const;
    const FigureSpan& Span() const { return span_; }
    void SetSpan(const FigureSpan& span);

    /// Rings a point and writes `text` beside it; none takes both away.
    void Mark(std::optional<FigurePlace> place, const QString& text = {});
    /// Shades what lies between two places in the figure.
    void SetBand(std::optional<FigureSpan> band);

    // In pixels of the parent.
    QRect Field() const;
    double PlaceAt(double x) const;
    QPointF PixelOf(FigurePlace place) const;
    /// The point of the stretch shown that is nearest to a pixel; none when there is none.
    std::optional<FigurePlace> Nearest(const QPointF& pixel) const;

    /// What is shown, without mark, on white, at a size in logical pixels and twice as many dots.
    QImage Picture(const QSize& size);

private:
    void AddBars(const FigureSeries& series);
    void AddLine(const FigureSeries& series, const QColor& ink);
    void FitToSpan();
    void LayTicks();
    LabelStyle StyleOfTicks(const QList<FigureTick>& shown) const;
    bool IsShown(const FigurePoint& point) const { return point.place >= span_.from && point.place <= span_.to; }

    std::unique_ptr<FigureCanvas> drawn_;
    Figure figure_;
    FigureSpan span_;
    std::optional<FigurePlace> mark_;
};

} // namespace zelvia
