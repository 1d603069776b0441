// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/RuledSheet.h"

#include "toolkit/PagePalette.h"
#include "toolkit/Pixels.h"

#include <QPainter>

namespace zelvia
{

void DrawRule(QPainter& painter, const QRectF& line, const QColor& ink)
{
    const Pixels pixels(painter);
    painter.fillRect(pixels.Line(line), ink);
}

void DrawSheetHead(QPainter& painter, const QRect& head)
{
    const auto across = [&](int top, int height) {
        DrawRule(painter, QRectF(head.left(), top, head.width(), height), Ink::Accent);
    };
    across(head.top(), 2);
    across(head.top() + 4, 1);
    across(head.bottom() - 1, 2);
    for (const int x : {head.left(), head.right()}) {
        DrawRule(painter, QRectF(x, head.top() + 5, 1, head.height() - 7), Ink::Rule);
    }
}

void DrawRuledSheet(QPainter& painter, const RuledSheet& sheet)
{
    if (!sheet.frame.isEmpty()) {
        DrawBorder(painter, sheet.frame, Ink::Rule.darker(108));
    }
    DrawSheetHead(painter, sheet.head);
    for (int row = 0; row <= sheet.rows; ++row) {
        DrawRule(painter, QRectF(sheet.head.left(), sheet.firstRow + row * sheet.step, sheet.head.width(), 1),
                 Ink::Rule);
    }
    for (const int x : sheet.lines) {
        DrawRule(painter, QRectF(x, sheet.headsTop, 1, sheet.Bottom() - sheet.headsTop), Ink::Rule);
    }
}

} // namespace zelvia
