// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The small drawings beside the values that say what the day was.
#include "windows/page/PageArt.h"
#include "windows/page/PageMarks.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>
#include <span>

namespace zelvia
{
namespace
{

constexpr QColor kSunlight{240, 190, 72};
constexpr QColor kCloud{222, 224, 224};
constexpr QColor kWater{70, 118, 178};
constexpr QColor kLeaf{104, 138, 88};
constexpr QColor kStone{206, 196, 178};

// The drawings' own field, mapped on the area they get.
constexpr qreal kWide = 32;
constexpr qreal kHigh = 26;

/// The pen of a thin printed line on the drawings' field.
void BeginMark(QPainter& painter, const QRectF& area)
{
    painter.save();
    const qreal scale = qMin(area.width() / kWide, area.height() / kHigh);
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-kWide / 2, -kHigh / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink::Print, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DrawSun(QPainter& painter, const QPointF& centre, qreal radius)
{
    constexpr int rays = 8;
    for (int ray = 0; ray < rays; ++ray) {
        const qreal angle = 2 * std::numbers::pi * ray / rays;
        const QPointF out(std::cos(angle), std::sin(angle));
        painter.drawLine(centre + out * (radius + 2), centre + out * (radius + 4.5));
    }
    painter.setBrush(kSunlight);
    painter.drawEllipse(centre, radius, radius);
}

QPainterPath Cloud()
{
    QPainterPath cloud;
    cloud.setFillRule(Qt::WindingFill);
    cloud.addEllipse(QPointF(10.5, 13), 5, 5);
    cloud.addEllipse(QPointF(17, 10), 6.5, 6.5);
    cloud.addEllipse(QPointF(23.5, 13.5), 4.5, 4.5);
    cloud.addRoundedRect(QRectF(5.5, 12, 22.5, 6), 3, 3);
    return cloud.simplified();
}

void DrawFall(QPainter& painter, unsigned signs)
{
    constexpr int pieces = 3;
    constexpr qreal top = 20.5;
    for (int piece = 0; piece < pieces; ++piece) {
        const qreal x = 11 + piece * 5.5;
        // Where rain and snow, or snow and ice, fall together they take turns.
        const bool snow = (signs & Weather::Snow) != 0 && ((signs & Weather::Rain) == 0 || piece == 1);
        if ((signs & Weather::Ice) != 0 && (piece == 1 || !snow)) {
            painter.setPen(QPen(kWater, 1.3));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolygon(QPolygonF{{x, top - 0.6}, {x + 2.2, top + 2}, {x, top + 4.6}, {x - 2.2, top + 2}});
        } else if (snow) {
            painter.setPen(QPen(kWater, 1.2, Qt::SolidLine, Qt::RoundCap));
            for (const QPointF arm : {QPointF(2.2, 0), QPointF(1.1, 1.9), QPointF(1.1, -1.9)}) {
                painter.drawLine(QPointF(x, top + 2) - arm, QPointF(x, top + 2) + arm);
            }
        } else {
            painter.setPen(QPen(kWater, 1.5, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(x + 1, top), QPointF(x - 0.8, top + 4.6));
        }
    }
}

/// Two streaks with curled ends, the longer one on top.
void DrawWind(QPainter& painter, const QPointF& start, qreal length)
{
    painter.setPen(QPen(Ink::Print, 1.2, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    for (int streak = 0; streak < 2; ++streak) {
        const qreal y = start.y() + streak * 4;
        const qreal right = start.x() + length - streak * 2;
        QPainterPath path(QPointF(start.x() + streak * 3, y));
        path.lineTo(right, y);
        path.arcTo(QRectF(right - 1.8, y - 3.6, 3.6, 3.6), -90, 230);
        painter.drawPath(path);
    }
}

void DrawFog(QPainter& painter, qreal y)
{
    painter.setPen(QPen(Mixed(Ink::Print, Ink::Paper, 0.35), 1.5, Qt::SolidLine, Qt::RoundCap));
    constexpr std::pair<qreal, qreal> streaks[] = {{9, 24}, {5, 21}, {8, 27}};
    for (const auto& [left, right] : streaks) {
        painter.drawLine(QPointF(left, y), QPointF(right, y));
        y += 4;
    }
}

void DrawFir(QPainter& painter, qreal x, qreal foot, qreal height)
{
    painter.drawLine(QPointF(x, foot), QPointF(x, foot - 3));
    painter.setBrush(kLeaf);
    painter.drawPolygon(
        QPolygonF{{x, foot - height}, {x + height * 0.32, foot - 2.5}, {x - height * 0.32, foot - 2.5}});
}

void DrawRoad(QPainter& painter, qreal middle)
{
    painter.setBrush(kStone);
    painter.drawPolygon(QPolygonF{{middle - 1.8, 10}, {middle + 1.8, 10}, {middle + 7, 24}, {middle - 7, 24}});
    painter.drawLine(QPointF(middle, 12.5), QPointF(middle, 14.5));
    painter.drawLine(QPointF(middle, 17.5), QPointF(middle, 21));
}

void DrawFootpath(QPainter& painter)
{
    QPainterPath path(QPointF(9, 24));
    path.cubicTo(22, 22, 5, 17, 13, 15);
    path.cubicTo(17, 14, 17, 12, 14.5, 10.5);
    painter.strokePath(path, QPen(Ink::Print, 3.6, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(path, QPen(kStone, 1.8, Qt::SolidLine, Qt::RoundCap));
}

void DrawHeights(QPainter& painter, bool mountain)
{
    painter.setBrush(Mixed(kStone, Ink::Paper, 0.4));
    if (mountain) {
        painter.drawPolygon(QPolygonF{{3, 18}, {11, 4}, {15, 10}, {19, 6}, {28, 18}});
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygonF{{8.7, 8}, {11, 4}, {13.7, 8}, {11, 9.5}});
    } else {
        painter.drawPolygon(QPolygonF{{3, 22}, {29, 6}, {29, 22}});
    }
}

void DrawTrack(QPainter& painter)
{
    painter.setBrush(QColor(206, 120, 92));
    painter.drawRoundedRect(QRectF(3, 6, 26, 15), 7.5, 7.5);
    painter.setBrush(Mixed(kLeaf, Ink::Paper, 0.4));
    painter.drawRoundedRect(QRectF(7.5, 10.5, 17, 6), 3, 3);
}

void DrawBeach(QPainter& painter)
{
    painter.setPen(QPen(kWater, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    for (const qreal y : {9.0, 13.5}) {
        QPainterPath wave(QPointF(4, y));
        for (int crest = 0; crest < 3; ++crest) {
            const qreal x = 4 + crest * 8;
            wave.cubicTo(x + 2.5, y - 3.5, x + 5.5, y - 3.5, x + 8, y);
        }
        painter.drawPath(wave);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(Mixed(kSunlight, Ink::Paper, 0.35));
    QPainterPath sand(QPointF(3, 23));
    sand.cubicTo(10, 16, 22, 16, 29, 23);
    sand.closeSubpath();
    painter.drawPath(sand);
}

} // namespace

void DrawWeather(QPainter& painter, const QRectF& area, unsigned signs)
{
    BeginMark(painter, area);
    const bool falls = (signs & (Weather::Rain | Weather::Snow | Weather::Ice)) != 0;
    const bool fog = (signs & Weather::Fog) != 0;
    const bool cloud = (signs & Weather::Cloud) != 0 || (falls && !fog);
    if ((signs & Weather::Sun) != 0) {
        cloud ? DrawSun(painter, {9, 7.5}, 4) : DrawSun(painter, {(signs & Weather::Wind) != 0 ? 11.0 : 16.0, 13}, 5.5);
    }
    if (cloud) {
        painter.setBrush(kCloud);
        painter.drawPath(Cloud());
    }
    if (fog) {
        DrawFog(painter, falls ? 7 : 9);
    }
    if (falls) {
        DrawFall(painter, signs);
    }
    if ((signs & Weather::Wind) != 0) {
        const bool under = cloud && !falls;
        const bool alone = signs == Weather::Wind;
        DrawWind(painter, under ? QPointF(7, 20.5) : alone ? QPointF(6, 12) : QPointF(20, 6), under || alone ? 20 : 8);
    }
    painter.restore();
}

void DrawTerrain(QPainter& painter, const QRectF& area, unsigned signs)
{
    BeginMark(painter, area);
    // Their common ground is below the middle of a line of writing.
    painter.translate(0, -2.5);
    const bool road = (signs & Terrain::Road) != 0;
    if ((signs & (Terrain::Climb | Terrain::Mountain)) != 0) {
        DrawHeights(painter, (signs & Terrain::Mountain) != 0);
    }
    if ((signs & Terrain::Track) != 0) {
        DrawTrack(painter);
    }
    if ((signs & Terrain::Beach) != 0) {
        DrawBeach(painter);
    }
    if (road) {
        DrawRoad(painter, (signs & Terrain::Path) != 0 ? 11 : 16);
    }
    if ((signs & Terrain::Path) != 0) {
        if (!road) {
            DrawFootpath(painter);
        }
        DrawFir(painter, 24, 24, 14);
    }
    painter.restore();
}

void DrawRosette(QPainter& painter, const QRectF& area)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / 24, area.height() / 48);
    painter.setPen(Qt::NoPen);
    for (const qreal side : {-1.0, 1.0}) {
        painter.setBrush(side < 0 ? Ink::Accent.darker(122) : Ink::Accent);
        painter.drawPolygon(QPolygonF{{12 - side * 2, 14},
                                      {12 + side * 5, 14},
                                      {12 + side * 9, 44},
                                      {12 + side * 5.2, 40.5},
                                      {12 + side * 2, 45}});
    }
    constexpr int petals = 12;
    painter.setBrush(Ink::Accent);
    QPainterPath edge;
    edge.setFillRule(Qt::WindingFill);
    for (int petal = 0; petal < petals; ++petal) {
        const qreal angle = 2 * std::numbers::pi * petal / petals;
        edge.addEllipse(QPointF(12 + 8.2 * std::cos(angle), 12.5 + 8.2 * std::sin(angle)), 3, 3);
    }
    edge.addEllipse(QPointF(12, 12.5), 9, 9);
    painter.drawPath(edge);
    painter.setBrush(Ink::Slip);
    painter.drawEllipse(QPointF(12, 12.5), 6.6, 6.6);
    painter.setPen(QPen(QColor(222, 178, 70), 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(12, 12.5), 5, 5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Accent);
    QPolygonF star;
    for (int point = 0; point < 10; ++point) {
        const qreal angle = std::numbers::pi * (point / 5.0 - 0.5);
        const qreal reach = point % 2 == 0 ? 3.9 : 1.6;
        star << QPointF(12 + reach * std::cos(angle), 12.7 + reach * std::sin(angle));
    }
    painter.drawPolygon(star);
    painter.restore();
}

} // namespace zelvia
