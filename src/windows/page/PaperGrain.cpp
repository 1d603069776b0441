// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PaperGrain.h"

#include "toolkit/Pixels.h"
#include "windows/page/PageArt.h"

#include <QPainter>
#include <QPainterPath>

namespace zelvia
{
namespace
{

constexpr double kLaid = 4;   ///< From one laid line to the next, in logical pixels.
constexpr double kChain = 96; ///< The same of the chain lines.

void DrawMould(QPainter& painter, const Pixels& pixels, const QRect& page)
{
    const int laid = qMax(2, pixels.Of(kLaid));
    const QColor faint = Mixed(Ink::Paper, Ink::PaperShade, 0.28);
    for (int y = page.top() + laid; y < page.bottom(); y += laid) {
        painter.fillRect(page.left(), y, page.width(), 1, faint);
    }
    const int chain = pixels.Of(kChain);
    const QColor shade = Mixed(Ink::Paper, Ink::PaperShade, 0.45);
    for (int x = page.left() + chain / 2; x < page.right(); x += chain) {
        painter.fillRect(x, page.top(), 1, page.height(), shade);
    }
}

/// Numbers that look like chance and are always the same.
class Scatter
{
public:
    /// A point from 0, 0 to the limits.
    QPointF Next(qreal right, qreal bottom)
    {
        // One after the other: compilers differ in which argument they work out first.
        const qreal y = Number(bottom);
        const qreal x = Number(right);
        return {x, y};
    }

private:
    qreal Number(qreal limit)
    {
        state_ = state_ * 1664525U + 1013904223U;
        return limit * (state_ >> 8U) / (1U << 24U);
    }

    unsigned state_ = 1926;
};

void DrawFibres(QPainter& painter, const Pixels& pixels, const QRect& page)
{
    constexpr int fibres = 60;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Mixed(Ink::Paper, Ink::PaperShade, 0.5), 0.8 * pixels.Scale()));
    Scatter scatter;
    const qreal unit = pixels.Scale();
    for (int i = 0; i < fibres; ++i) {
        const QPointF from = QPointF(page.left(), page.top() + 6 * unit) +
                             scatter.Next(page.width() - 16 * unit, page.height() - 12 * unit);
        const QPointF bend = (scatter.Next(8, 8) - QPointF(0, 4)) * unit;
        const QPointF end = (scatter.Next(8, 6) + QPointF(6, -3)) * unit;
        QPainterPath fibre(from);
        fibre.quadTo(from + bend, from + end);
        painter.drawPath(fibre);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void DrawCurl(QPainter& painter, const Pixels& pixels, const QRect& page)
{
    const int reach = pixels.Of(18.0);
    const int corner = pixels.Of(4.0);
    const QRect place = pixels.Of(page).adjusted(0, corner, 0, -corner);
    for (int x = 0; x < reach; ++x) {
        const double part = 1 - (x + 0.5) / reach;
        const QColor paper = Mixed(Ink::Paper, Ink::PaperShade, 0.7 * part * part);
        painter.fillRect(place.left() + x, place.top(), 1, place.height(), paper);
        painter.fillRect(place.right() - x, place.top(), 1, place.height(), paper);
    }
}

void DrawGrain(QPainter& painter, const Pixels& pixels, const QRect& page)
{
    const QRect place = pixels.Of(page);
    DrawMould(painter, pixels, place);
    DrawFibres(painter, pixels, place);
}

} // namespace zelvia
