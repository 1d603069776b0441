// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pictograms of the counters.
#include "windows/page/PageArt.h"

#include <QPainter>
#include <QPainterPath>

namespace zelvia
{
namespace
{

/// Maps drawings of a 40 by 40 field on `area`, with the pen of a printed line.
void BeginPictogram(QPainter& painter, const QRectF& area)
{
    painter.translate(area.topLeft());
    painter.scale(area.width() / 40, area.height() / 40);
    painter.setPen(QPen(Ink::Print, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

} // namespace

void DrawCalendarLeaf(QPainter& painter, const QRectF& area)
{
    BeginPictogram(painter, area);
    painter.drawRoundedRect(QRectF(6, 8, 28, 27), 3, 3);
    painter.setBrush(Ink::Accent);
    painter.drawRoundedRect(QRectF(6, 8, 28, 8), 3, 3);
    painter.drawLine(QPointF(13, 5), QPointF(13, 11));
    painter.drawLine(QPointF(27, 5), QPointF(27, 11));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Print);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            painter.drawEllipse(QPointF(13 + column * 7, 22 + row * 7), 1.6, 1.6);
        }
    }
}

void DrawShoe(QPainter& painter, const QRectF& area)
{
    BeginPictogram(painter, area);
    QPainterPath shoe;
    shoe.moveTo(4, 29);
    shoe.lineTo(4, 17);
    shoe.cubicTo(8, 20, 12, 18, 14, 12);
    shoe.cubicTo(19, 20, 25, 21, 31, 23);
    shoe.cubicTo(35, 24, 37, 26, 37, 29);
    shoe.closeSubpath();
    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawPath(shoe);
    painter.setBrush(Ink::Accent);
    painter.drawRoundedRect(QRectF(4, 29, 33, 4), 2, 2);
    for (int lace = 0; lace < 3; ++lace) {
        painter.drawLine(QPointF(17.5 + lace * 4, 17 + lace * 2), QPointF(14.5 + lace * 4, 21 + lace * 1.6));
    }
}

void DrawMilestone(QPainter& painter, const QRectF& area)
{
    BeginPictogram(painter, area);
    QPainterPath stone;
    stone.moveTo(10, 35);
    stone.lineTo(10, 16);
    stone.cubicTo(10, 3, 30, 3, 30, 16);
    stone.lineTo(30, 35);
    stone.closeSubpath();
    painter.setBrush(Mixed(Ink::Paper, Qt::white, 120 / 255.0));
    painter.drawPath(stone);
    painter.drawLine(QPointF(5, 35), QPointF(35, 35));
    // The headings' font, made smaller by the painter: a size of its own would be one more font to load.
    painter.translate(20, 20);
    painter.scale(0.7, 0.7);
    painter.setFont(PrintFont(16, true));
    painter.setPen(Ink::Accent);
    painter.drawText(QRectF(-15, -12, 30, 24), Qt::AlignCenter, QStringLiteral("km"));
}

void DrawCup(QPainter& painter, const QRectF& area)
{
    BeginPictogram(painter, area);
    painter.drawArc(QRectF(5, 9, 12, 12), 90 * 16, 180 * 16);
    painter.drawArc(QRectF(23, 9, 12, 12), -90 * 16, 180 * 16);
    QPainterPath cup;
    cup.moveTo(11, 6);
    cup.lineTo(29, 6);
    cup.cubicTo(29, 18, 26, 23, 20, 24);
    cup.cubicTo(14, 23, 11, 18, 11, 6);
    painter.setBrush(QColor(222, 178, 70));
    painter.drawPath(cup);
    painter.drawLine(QPointF(20, 24), QPointF(20, 31));
    painter.setBrush(Ink::Accent);
    painter.drawRoundedRect(QRectF(12, 31, 16, 4), 1.5, 1.5);
}

} // namespace zelvia
