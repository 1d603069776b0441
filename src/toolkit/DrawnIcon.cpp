// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/DrawnIcon.h"

#include "toolkit/PagePalette.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <initializer_list>

namespace zelvia
{
namespace
{

constexpr qreal kField = 32;

class Engine : public QIconEngine
{
public:
    explicit Engine(IconDrawing drawing) : drawing_(drawing) {}

    QIconEngine* clone() const override { return new Engine(drawing_); }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        constexpr qreal faint = 0.45;
        const qreal side = std::min(place.width(), place.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? faint : 1);
        painter->translate(QRectF(place).center() - QPointF(side, side) / 2);
        painter->scale(side / kField, side / kField);
        drawing_(*painter);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

private:
    IconDrawing drawing_;
};

void Outline(QPainter& painter, const QColor& ink, qreal width)
{
    painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

/// A disc of an ink with a rim of paper inside, as a stamp leaves it.
void DrawStamp(QPainter& painter, const QColor& ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QRectF(1, 1, 30, 30));
    Outline(painter, Ink::Slip, 1);
    painter.drawEllipse(QRectF(3.5, 3.5, 25, 25));
}

/// The upright of an "i" or, from the other end, of an exclamation mark.
void DrawStroke(QPainter& painter, qreal from, qreal to, qreal dot)
{
    Outline(painter, Ink::Slip, 3.2);
    painter.drawLine(QPointF(16, from), QPointF(16, to));
    painter.drawPoint(QPointF(16, dot));
}

void DrawInformation(QPainter& painter)
{
    DrawStamp(painter, Ink::Pen);
    DrawStroke(painter, 15, 23, 9);
}

void DrawQuestion(QPainter& painter)
{
    DrawStamp(painter, Ink::Print);
    QPainterPath hook(QPointF(11.5, 12));
    hook.cubicTo(11.5, 6, 20.5, 6, 20.5, 11.5);
    hook.cubicTo(20.5, 15, 16, 14.5, 16, 18.5);
    Outline(painter, Ink::Slip, 3);
    painter.drawPath(hook);
    painter.drawPoint(QPointF(16, 24));
}

void DrawWarning(QPainter& painter)
{
    constexpr QColor ochre{176, 106, 12};
    QPolygonF sign{{16, 3}, {30, 28}, {2, 28}};
    painter.setPen(QPen(ochre, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(ochre);
    painter.drawPolygon(sign);
    DrawStroke(painter, 11, 19, 25);
}

void DrawCritical(QPainter& painter)
{
    DrawStamp(painter, Ink::Accent);
    Outline(painter, Ink::Slip, 3.2);
    painter.drawLine(QPointF(11, 11), QPointF(21, 21));
    painter.drawLine(QPointF(21, 11), QPointF(11, 21));
}

/// A shaft from one point to another and a head at its end.
void DrawArrow(QPainter& painter, QPointF from, QPointF to)
{
    const QPointF back = (from - to) / 2;
    const QPointF aside(back.y(), -back.x());
    Outline(painter, Ink::Print, 3);
    painter.drawLine(from, to);
    painter.drawPolyline(QPolygonF{to + back + aside, to, to + back - aside});
}

void DrawBack(QPainter& painter)
{
    DrawArrow(painter, {27, 16}, {6, 16});
}

void DrawForward(QPainter& painter)
{
    DrawArrow(painter, {5, 16}, {26, 16});
}

void DrawUp(QPainter& painter)
{
    DrawArrow(painter, {16, 27}, {16, 6});
}

void DrawFolder(QPainter& painter)
{
    Outline(painter, Ink::Print, 1.8);
    painter.setBrush(Ink::PaperShade);
    painter.drawPolygon(QPolygonF{{3, 26}, {3, 7}, {12, 7}, {15, 11}, {29, 11}, {29, 26}});
    painter.drawLine(QPointF(3, 15), QPointF(29, 15));
}

void DrawNewFolder(QPainter& painter)
{
    DrawFolder(painter);
    Outline(painter, Ink::Accent, 3);
    painter.drawLine(QPointF(16, 20.5), QPointF(26, 20.5));
    painter.drawLine(QPointF(21, 15.5), QPointF(21, 25.5));
}

void DrawFile(QPainter& painter)
{
    Outline(painter, Ink::Print, 1.8);
    painter.setBrush(Ink::Slip);
    painter.drawPolygon(QPolygonF{{6, 3}, {20, 3}, {26, 9}, {26, 29}, {6, 29}});
    for (const int y : {13, 18, 23}) {
        painter.drawLine(QPointF(10, y), QPointF(22, y));
    }
}

void DrawComputer(QPainter& painter)
{
    Outline(painter, Ink::Print, 1.8);
    painter.setBrush(Ink::PaperShade);
    painter.drawRect(QRectF(4, 5, 24, 16));
    painter.drawLine(QPointF(16, 21), QPointF(16, 26));
    painter.drawLine(QPointF(9, 27), QPointF(23, 27));
}

void DrawListing(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Print);
    for (const int y : {5, 18}) {
        painter.drawRect(QRectF(5, y, 9, 9));
        painter.drawRect(QRectF(18, y, 9, 9));
    }
}

void DrawDetails(QPainter& painter)
{
    Outline(painter, Ink::Print, 2.6);
    for (const int y : {7, 13, 19, 25}) {
        painter.drawLine(QPointF(5, y), QPointF(27, y));
    }
}

void DrawClear(QPainter& painter)
{
    Outline(painter, Ink::Print, 3);
    painter.drawLine(QPointF(9, 9), QPointF(23, 23));
    painter.drawLine(QPointF(23, 9), QPointF(9, 23));
}

/// What a bar that is too narrow shows for the rest of its entries.
void DrawMore(QPainter& painter)
{
    Outline(painter, Ink::Print, 3);
    for (const int left : {6, 17}) {
        painter.drawPolyline(QPolygonF{{left + 0.0, 6}, {left + 9.0, 16}, {left + 0.0, 26}});
    }
}

void DrawLeaf(QPainter& painter)
{
    painter.fillRect(QRectF(22, 10, 90, 106), Ink::PaperShade);
    painter.fillRect(QRectF(22, 8, 88, 106), Ink::Paper);
    painter.fillRect(QRectF(22, 8, 12, 106), QColor(231, 221, 196));
    painter.fillRect(QRectF(22, 8, 3, 106), QColor(175, 164, 145));
    for (const int y : {17, 21}) {
        painter.fillRect(QRectF(40, y, 63, 2), Ink::Accent);
    }
    for (const int y : {35, 49, 103}) {
        painter.fillRect(QRectF(40, y, 63, 2), Ink::Rule);
    }
    Outline(painter, Ink::Pen, 3.4);
    for (const int y : {32, 46}) {
        QPainterPath word(QPointF(42, y));
        word.cubicTo(48, y - 5, 51, y + 2, 56, y - 1);
        word.cubicTo(61, y - 4, 64, y - 5, 69, y - 2);
        painter.drawPath(word);
    }
}

void DrawRunningShoe(QPainter& painter)
{
    QPainterPath shoe(QPointF(36, 62));
    shoe.cubicTo(40, 66, 46, 66, 50, 60);
    shoe.lineTo(56, 58);
    shoe.cubicTo(62, 70, 72, 78, 90, 81);
    shoe.cubicTo(100, 83, 105, 87, 105, 94);
    shoe.lineTo(104, 97);
    shoe.lineTo(36, 97);
    shoe.cubicTo(33, 90, 33, 76, 36, 62);
    Outline(painter, Ink::PrintDark, 3.5);
    painter.setBrush(QColor(201, 64, 47));
    painter.drawPath(shoe);
    painter.setBrush(Ink::Slip);
    painter.drawRoundedRect(QRectF(34, 95, 73, 9), 4, 4);
    painter.drawLine(QPointF(60, 71), QPointF(67, 65));
    painter.drawLine(QPointF(66.5, 77), QPointF(73.5, 71));
    painter.drawLine(QPointF(74, 81), QPointF(80.5, 75));
}

} // namespace

QIcon DrawnIcon(IconDrawing drawing)
{
    return QIcon(new Engine(drawing));
}

IconDrawing StandardDrawing(QStyle::StandardPixmap icon)
{
    switch (icon) {
    case QStyle::SP_MessageBoxInformation: return DrawInformation;
    case QStyle::SP_MessageBoxQuestion: return DrawQuestion;
    case QStyle::SP_MessageBoxWarning: return DrawWarning;
    case QStyle::SP_MessageBoxCritical: return DrawCritical;
    case QStyle::SP_FileDialogBack:
    case QStyle::SP_ArrowBack:
    case QStyle::SP_ArrowLeft: return DrawBack;
    case QStyle::SP_ArrowForward:
    case QStyle::SP_ArrowRight: return DrawForward;
    case QStyle::SP_FileDialogToParent: return DrawUp;
    case QStyle::SP_FileDialogNewFolder: return DrawNewFolder;
    case QStyle::SP_FileDialogListView: return DrawListing;
    case QStyle::SP_FileDialogDetailedView: return DrawDetails;
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirHomeIcon: return DrawFolder;
    case QStyle::SP_FileIcon: return DrawFile;
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon: return DrawComputer;
    case QStyle::SP_LineEditClearButton: return DrawClear;
    case QStyle::SP_ToolBarHorizontalExtensionButton: return DrawMore;
    default: return nullptr;
    }
}

/// The artwork of the desktop's icon, which has a field of 128 by 128.
void DrawProgramIcon(QPainter& painter)
{
    constexpr qreal field = 128;
    painter.scale(kField / field, kField / field);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Desk);
    painter.drawRoundedRect(QRectF(14, 8, 102, 114), 8, 8);
    DrawLeaf(painter);
    DrawRunningShoe(painter);
}

} // namespace zelvia
