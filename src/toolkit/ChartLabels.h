// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QStringList>

namespace zelvia
{

/// How the labels under a chart are written.
struct LabelStyle {
    QStringList texts; ///< Level labels may be broken into lines.
    QFont font;
    double rotation = 0; ///< In degrees: 0, -45 or -90.
    int rows = 1;        ///< Label i goes into row i modulo rows, from the axis down.
    double height = 0;   ///< Of all rows, in logical pixels.
};

/// The room for the labels, in logical pixels: `step` from one point to the next, `left` from the left border to the
/// first point, `height` to be kept to if possible.
struct LabelRoom {
    double step;
    double left;
    double height;
};

inline constexpr int kLabelGap = 6; ///< Between the axis and the labels, and between their rows.
inline constexpr int kSmallestLabel = 9;

/// The flattest style, then the largest type, in which the labels keep clear of each other. Each label is written
/// whole, even when that takes more than the room's height.
LabelStyle StyleOf(const QStringList& labels, const LabelRoom& room);

} // namespace zelvia
