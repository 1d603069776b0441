// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRect>

#include <span>

class QPainter;

namespace zelvia
{

/// Where the printed lines of a sheet are, in logical pixels.
struct RuledSheet {
    QRect frame;  ///< Around everything; none when empty.
    QRect head;   ///< Of the title, between two heavy lines and one.
    int headsTop; ///< Of the captions of the columns.
    int firstRow; ///< The upper edge of the first row.
    int step;     ///< From row to row.
    int rows;
    std::span<const int> lines; ///< The uprights between the columns.

    int Bottom() const { return firstRow + rows * step; }
};

void DrawRuledSheet(QPainter& painter, const RuledSheet& sheet);

/// The lines of a head alone.
void DrawSheetHead(QPainter& painter, const QRect& head);

/// A printed line on whole pixels of the device, as wide as every other one of its width.
void DrawRule(QPainter& painter, const QRectF& line, const QColor& ink);

} // namespace zelvia
