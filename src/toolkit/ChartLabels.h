// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QStringList>

namespace zelvia
{

/// How the labels under the points of a chart stand: side by side, slanted, upright, or upright and dealt out over
/// several rows.
class ChartLabels
{
public:
    enum class Stand { Level, Slanted, Upright };

    /// Room for the labels, in logical pixels: `step` from one point to the next, `left` from the left border to the
    /// first point, `height` to be kept to if that can be done.
    struct Room {
        double step;
        double left;
        double height;
    };

    /// Takes the largest type and the flattest stand in which the labels keep clear of each other.
    ChartLabels(QStringList labels, const Room& room);

    Stand Standing() const { return stand_; }
    int Rows() const { return rows_; }
    const QFont& Font() const { return font_; }
    /// Logical pixels from the axis to the lowest end of a label.
    double Height() const { return height_; }

    /// Draws label `index`, from 0 on, under the point of the axis that it belongs to.
    void Draw(QPainter& painter, qsizetype index, const QPointF& point) const;

    /// What label `index` covers, about its point: for labels that stand level or upright.
    QRectF Cover(qsizetype index) const;

    static constexpr int kLargest = 13;
    static constexpr int kSmallest = 9;

private:
    bool TryLevel(const Room& room, int pixels);
    bool TrySlanted(const Room& room, int pixels);
    bool TryUpright(const Room& room, int pixels, int mostRows);
    void Use(Stand stand, int rows, double height, const QFont& font);
    /// The words of each label dealt out over lines no wider than `width`; empty when a word is too wide.
    QList<QStringList> Wrapped(const QFont& font, double width) const;

    QStringList labels_;
    QList<QStringList> lines_; ///< Of labels that stand level.
    Stand stand_ = Stand::Level;
    int rows_ = 1;
    double height_ = 0;
    double rowHeight_ = 0;
    QFont font_;
};

} // namespace zelvia
