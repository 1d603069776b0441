// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ChartLabels.h"

#include "toolkit/Fonts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zelvia
{
namespace
{

constexpr double kBetween = 8; ///< Between level labels, at least.
constexpr int kMostLines = 3;  ///< Of a level label.
constexpr double kSine = std::numbers::sqrt2 / 2;

/// The styles, in the order in which they are tried.
struct Try {
    double rotation;
    int pixels;
    int mostRows;
};
constexpr Try kTries[] = {{0, 13, 1},   {0, 12, 1},   {0, 11, 1},   {-45, 13, 1},
                          {-45, 12, 1}, {-45, 11, 1}, {-90, 13, 1}, {-90, 12, 1},
                          {-90, 11, 1}, {-90, 10, 1}, {-90, 10, 8}, {-90, kSmallestLabel, 8}};

double Widest(const QStringList& texts, const QFontMetricsF& metrics)
{
    double widest = 0;
    for (const QString& text : texts) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return widest;
}

/// The height of the line that the labels' ink needs, with a pixel between two of them.
double InkHeight(const QStringList& labels, const QFontMetricsF& metrics)
{
    QRectF ink;
    for (const QString& label : labels) {
        ink |= metrics.tightBoundingRect(label);
    }
    return ink.height() + 1;
}

/// The label broken between words into lines of at most `width`; a longer word has a line of its own.
QStringList Lines(const QString& label, const QFontMetricsF& metrics, double width)
{
    QStringList lines;
    for (const QString& word : label.split(QLatin1Char(' '))) {
        const QString longer = lines.isEmpty() ? word : lines.constLast() + QLatin1Char(' ') + word;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width) {
            lines.last() = longer;
        } else {
            lines << word;
        }
    }
    return lines;
}

bool FitsLevel(LabelStyle& style, const QFontMetricsF& metrics, const LabelRoom& room)
{
    qsizetype most = 1;
    for (QString& label : style.texts) {
        const QStringList lines = Lines(label, metrics, room.step - kBetween);
        most = std::max(most, lines.size());
        if (Widest(lines, metrics) > room.step - kBetween) {
            return false;
        }
        label = lines.join(QLatin1Char('\n'));
    }
    style.height = kLabelGap + static_cast<double>(most) * metrics.height();
    return most <= kMostLines;
}

bool FitsSlanted(LabelStyle& style, const QFontMetricsF& metrics, const LabelRoom& room)
{
    const double line = InkHeight(style.texts, metrics);
    style.height = kLabelGap + (Widest(style.texts, metrics) + line) * kSine;
    // Each ends at its point and must not begin beyond the left border.
    double point = room.left;
    for (const QString& label : style.texts) {
        if ((metrics.horizontalAdvance(label) + metrics.height()) * kSine > point) {
            return false;
        }
        point += room.step;
    }
    return line <= room.step * kSine;
}

bool FitsUpright(LabelStyle& style, const QFontMetricsF& metrics, const LabelRoom& room)
{
    style.rows = std::max(1, static_cast<int>(std::ceil(InkHeight(style.texts, metrics) / room.step)));
    style.height = style.rows * (kLabelGap + 1 + Widest(style.texts, metrics));
    return true;
}

bool Fits(LabelStyle& style, const LabelRoom& room)
{
    const QFontMetricsF metrics(style.font);
    return style.rotation == 0     ? FitsLevel(style, metrics, room)
           : style.rotation == -45 ? FitsSlanted(style, metrics, room)
                                   : FitsUpright(style, metrics, room);
}

} // namespace

LabelStyle StyleOf(const QStringList& labels, const LabelRoom& room)
{
    LabelStyle style;
    for (const Try& next : kTries) {
        style = {labels, PageFont("MS Sans Serif", next.pixels), next.rotation};
        if (Fits(style, room) && style.rows <= next.mostRows && style.height <= room.height) {
            break;
        }
    }
    return style;
}

} // namespace zelvia
