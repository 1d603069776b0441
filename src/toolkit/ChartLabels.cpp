// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ChartLabels.h"

#include "toolkit/Fonts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace zelvia
{
namespace
{

constexpr double kGap = 6;      ///< Between the axis and the labels, and between rows of them.
constexpr double kBetween = 8;  ///< Between level labels, at least.
constexpr double kTight = 0.95; ///< Of a line's height: upright labels keep clear of each other at this distance.
constexpr int kMostLines = 3;   ///< Of a level label.
constexpr int kMostRows = 8;    ///< Of upright labels.
constexpr double kSlope = std::numbers::sqrt2 / 2; ///< Sine and cosine of 45 degrees.

QFont TextFont(int pixels)
{
    return PageFont("MS Sans Serif", pixels);
}

double Widest(const QStringList& texts, const QFontMetricsF& metrics)
{
    double widest = 0;
    for (const QString& text : texts) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return widest;
}

/// The height of a line of capitals and digits with what hangs below them.
double LineHeight(const QFontMetricsF& metrics)
{
    return metrics.capHeight() + metrics.descent() + 1;
}

} // namespace

ChartLabels::ChartLabels(QStringList labels, const Room& room) : labels_(std::move(labels))
{
    for (int pixels = kLargest; pixels >= kLargest - 2; --pixels) {
        if (TryLevel(room, pixels)) {
            return;
        }
    }
    for (int pixels = kLargest; pixels >= kLargest - 2; --pixels) {
        if (TrySlanted(room, pixels)) {
            return;
        }
    }
    for (int pixels = kLargest; pixels >= kSmallest; --pixels) {
        if (TryUpright(room, pixels, 1)) {
            return;
        }
    }
    for (int pixels = kSmallest + 1; pixels >= kSmallest; --pixels) {
        if (TryUpright(room, pixels, kMostRows)) {
            return;
        }
    }
    // More than the room holds: all the same each label is written whole.
    const Room any{room.step, room.left, 1e9};
    TryUpright(any, kSmallest, static_cast<int>(std::max<qsizetype>(labels_.size(), 1)));
}

void ChartLabels::Use(Stand stand, int rows, double height, const QFont& font)
{
    stand_ = stand;
    rows_ = rows;
    height_ = height;
    font_ = font;
}

QList<QStringList> ChartLabels::Wrapped(const QFont& font, double width) const
{
    const QFontMetricsF metrics(font);
    QList<QStringList> all;
    for (const QString& label : labels_) {
        QStringList lines;
        for (const QString& word : label.split(QLatin1Char(' '))) {
            const QString longer = lines.isEmpty() ? word : lines.constLast() + QLatin1Char(' ') + word;
            if (metrics.horizontalAdvance(longer) <= width) {
                lines.isEmpty() ? lines.append(longer) : lines.replace(lines.size() - 1, longer);
            } else {
                lines << word;
            }
        }
        if (lines.size() > kMostLines || Widest(lines, metrics) > width) {
            return {};
        }
        all << lines;
    }
    return all;
}

bool ChartLabels::TryLevel(const Room& room, int pixels)
{
    const QFont font = TextFont(pixels);
    const QFontMetricsF metrics(font);
    lines_ = Wrapped(font, room.step - kBetween);
    if (lines_.size() != labels_.size()) {
        return false;
    }
    qsizetype lines = 1;
    for (const QStringList& label : lines_) {
        lines = std::max(lines, label.size());
    }
    const double height = kGap + static_cast<double>(lines) * metrics.height();
    if (height > room.height) {
        return false;
    }
    Use(Stand::Level, 1, height, font);
    return true;
}

bool ChartLabels::TrySlanted(const Room& room, int pixels)
{
    const QFont font = TextFont(pixels);
    const QFontMetricsF metrics(font);
    const double line = LineHeight(metrics);
    const double height = kGap + (Widest(labels_, metrics) + line) * kSlope;
    if (room.step * kSlope < line || height > room.height) {
        return false;
    }
    for (qsizetype i = 0; i < labels_.size(); ++i) {
        const double reach = (metrics.horizontalAdvance(labels_[i]) + line) * kSlope;
        if (reach > room.left + static_cast<double>(i) * room.step) {
            return false;
        }
    }
    Use(Stand::Slanted, 1, height, font);
    return true;
}

bool ChartLabels::TryUpright(const Room& room, int pixels, int mostRows)
{
    const QFont font = TextFont(pixels);
    const QFontMetricsF metrics(font);
    const int rows = std::max(1, static_cast<int>(std::ceil(LineHeight(metrics) * kTight / room.step)));
    const double rowHeight = Widest(labels_, metrics) + kGap;
    if (rows > mostRows || rows * rowHeight > room.height) {
        return false;
    }
    rowHeight_ = rowHeight;
    Use(Stand::Upright, rows, rows * rowHeight, font);
    return true;
}

QRectF ChartLabels::Cover(qsizetype index) const
{
    const QFontMetricsF metrics(font_);
    if (stand_ == Stand::Level) {
        const double width = Widest(lines_[index], metrics);
        return {-width / 2, kGap, width, static_cast<double>(lines_[index].size()) * metrics.height()};
    }
    const double line = LineHeight(metrics) * kTight;
    const double top = kGap + static_cast<double>(index % rows_) * rowHeight_;
    return {-line / 2, top, line, metrics.horizontalAdvance(labels_[index])};
}

void ChartLabels::Draw(QPainter& painter, qsizetype index, const QPointF& point) const
{
    const QFontMetricsF metrics(font_);
    painter.save();
    painter.setFont(font_);
    painter.translate(point);
    if (stand_ == Stand::Level) {
        double baseline = kGap + metrics.ascent();
        for (const QString& line : lines_[index]) {
            painter.drawText(QPointF(-metrics.horizontalAdvance(line) / 2, baseline), line);
            baseline += metrics.height();
        }
    } else {
        const bool upright = stand_ == Stand::Upright;
        painter.translate(0, kGap + (upright ? static_cast<double>(index % rows_) * rowHeight_ : 0));
        painter.rotate(upright ? -90 : -45);
        // The label ends at its point; the middle of its capitals lies in line with it.
        painter.drawText(QPointF(-metrics.horizontalAdvance(labels_[index]), metrics.capHeight() / 2), labels_[index]);
    }
    painter.restore();
}

} // namespace zelvia
