// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>

#include <algorithm>

namespace zelvia
{

/// The whole number of pixels nearest to a length, at least one, where `scale` of them make a unit.
inline int NearestPixels(double length, double scale)
{
    return std::max(qRound(length * scale), 1);
}

/// The length nearest to `length` that is a whole number of pixels, at least one.
inline double WholePixels(double length, double scale)
{
    return NearestPixels(length, scale) / scale;
}

/// Has a painter count in pixels of the screen as long as it lives, without smoothing: upright edges are sharp at every
/// scale, and lines of one width are all as wide.
class Pixels
{
public:
    explicit Pixels(QPainter& painter) : painter_(painter), transform_(painter.deviceTransform())
    {
        painter_.save();
        painter_.setWorldTransform(transform_.inverted() * painter_.worldTransform());
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
    ~Pixels() { painter_.restore(); }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    double Scale() const { return transform_.m11(); }

    /// The nearest whole number of pixels to a length, at least one.
    int Of(double length) const { return NearestPixels(length, Scale()); }

    /// The pixels nearest to an area. Areas that touch each other still do.
    QRect Of(const QRectF& area) const
    {
        const QRectF mapped = transform_.mapRect(area);
        const QPoint corner(qRound(mapped.left()), qRound(mapped.top()));
        return {corner, QSize(std::max(qRound(mapped.right()) - corner.x(), 1),
                              std::max(qRound(mapped.bottom()) - corner.y(), 1))};
    }

    /// The pixels nearest to an area, in the units in which the painter counted before.
    QRectF Around(const QRectF& area) const { return transform_.inverted().mapRect(QRectF(Of(area))); }

    /// A line: its shorter side is as wide as that of any other line of that width.
    QRect Line(const QRectF& line) const
    {
        QRect pixels = Of(line);
        line.width() < line.height() ? pixels.setWidth(Of(line.width())) : pixels.setHeight(Of(line.height()));
        return pixels;
    }

    /// A frame along the inside of `place`, in pixels.
    void DrawFrame(const QRect& place, int width, const QColor& ink) const
    {
        const QRect inside = place.adjusted(width, width, -width, -width);
        painter_.fillRect(place.left(), place.top(), place.width(), width, ink);
        painter_.fillRect(place.left(), inside.bottom() + 1, place.width(), width, ink);
        painter_.fillRect(place.left(), inside.top(), width, inside.height(), ink);
        painter_.fillRect(inside.right() + 1, inside.top(), width, inside.height(), ink);
    }

private:
    QPainter& painter_;
    QTransform transform_;
};

/// Moves a painter of a widget onto the nearest whole pixel of the screen.
inline void MoveOntoPixels(QPainter& painter)
{
    const QTransform transform = painter.deviceTransform();
    painter.translate((qRound(transform.dx()) - transform.dx()) / transform.m11(),
                      (qRound(transform.dy()) - transform.dy()) / transform.m22());
}

} // namespace zelvia
