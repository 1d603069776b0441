// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "daywindow/PageArt.h"

#include "daywindow/PageLayout.h"
#include "toolkit/Application.h"
#include "toolkit/QtText.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace zelvia
{
namespace
{

using namespace PageLayout;

void DrawDesk(QPainter& painter)
{
    QLinearGradient wood(kDesk.topLeft(), kDesk.bottomLeft());
    wood.setColorAt(0, Ink::Desk.lighter(116));
    wood.setColorAt(1, Ink::Desk.darker(116));
    painter.fillRect(kDesk, wood);
    painter.setPen(Qt::NoPen);
    for (int depth = 8; depth > 0; --depth) {
        painter.setBrush(QColor(0, 0, 0, 12));
        painter.drawRoundedRect(kLeftPage.united(kRightPage).adjusted(-depth, -depth + 3, depth, depth + 2), 8, 8);
    }
}

void DrawLeavesUnderneath(QPainter& painter)
{
    const QRectF both = QRectF(kLeftPage.united(kRightPage));
    painter.setPen(Qt::NoPen);
    for (int leaf = 3; leaf > 0; --leaf) {
        painter.setBrush(leaf % 2 == 0 ? Ink::Paper : Ink::PaperShade);
        painter.drawRoundedRect(both.adjusted(-leaf * 1.5, 0, leaf * 1.5, leaf * 1.5), 5, 5);
    }
}

void DrawPaper(QPainter& painter)
{
    const QRectF both = QRectF(kLeftPage.united(kRightPage));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Paper);
    painter.drawRoundedRect(both, 4, 4);

    // The fold of the binding.
    const qreal spine = kRightPage.left();
    constexpr qreal reach = 46;
    QLinearGradient fold(spine - reach, 0, spine + reach, 0);
    fold.setColorAt(0, QColor(90, 60, 30, 0));
    fold.setColorAt(0.42, QColor(90, 60, 30, 34));
    fold.setColorAt(0.5, QColor(60, 38, 18, 110));
    fold.setColorAt(0.58, QColor(90, 60, 30, 30));
    fold.setColorAt(1, QColor(90, 60, 30, 0));
    painter.fillRect(QRectF(spine - reach, both.top(), 2 * reach, both.height()), fold);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Ink::Rule.darker(108), 1));
    painter.drawRoundedRect(QRectF(kLeftPage).adjusted(12.5, 10.5, -15.5, -10.5), 3, 3);
    painter.drawRoundedRect(QRectF(kRightPage).adjusted(15.5, 10.5, -12.5, -10.5), 3, 3);
}

void DrawRule(QPainter& painter, int left, int right, int y)
{
    painter.setPen(QPen(Ink::Rule, 1));
    painter.drawLine(QPointF(left, y + 0.5), QPointF(right, y + 0.5));
}

void DrawWord(QPainter& painter, const QRect& place, TextView word, const QFont& font, const QColor& ink,
              Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter)
{
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(place, static_cast<int>(alignment), ToQString(word));
}

void DrawFields(QPainter& painter)
{
    for (int row = 0; row < kRows; ++row) {
        DrawRule(painter, kCaptionLeft, kRowRight, RowTop(row) + kRowHeight + 1);
    }
    const QFont print = PrintFont(15);
    DrawWord(painter, Caption(Tempo), "Tempo", print, Ink::Print);
    DrawWord(painter, Caption(Media), "Media", print, Ink::Print);
    DrawWord(painter, kPer, "x", print, Ink::Print, Qt::AlignCenter);
    DrawWord(painter, kIn, "@", print, Ink::Print, Qt::AlignCenter);
    DrawWord(painter, kFileCaption, "Diario", PrintFont(13), Ink::Print);
}

void DrawSlip(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    for (int depth = 4; depth > 0; --depth) {
        painter.setBrush(QColor(60, 38, 18, 14));
        painter.drawRoundedRect(QRectF(kSlip).adjusted(-1, 1, depth, depth + 1), 4, 4);
    }
    painter.setBrush(Ink::Slip);
    painter.setPen(QPen(Ink::Rule.darker(112), 1));
    painter.drawRoundedRect(QRectF(kSlip).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(QPen(Ink::Accent, 1.4));
    const qreal y = kSlipTop + 31;
    painter.drawLine(QPointF(kSlip.left() + 16, y), QPointF(kSlip.right() - 16, y));
}

void DrawNotes(QPainter& painter)
{
    DrawWord(painter, kNotesHead, "Note", PrintFont(17, true), Ink::Accent);
    for (int line = 3; line <= 10; ++line) {
        DrawRule(painter, 636, 1144, Note(line).bottom() + 2);
    }
}

void DrawFoot(QPainter& painter)
{
    DrawRule(painter, 636, 1144, kCountersTop - 8);
    const QFont small = PrintFont(12);
    constexpr std::array<TextView, 4> captions = {"Giorno dell'anno", "Allenamenti", "Km percorsi", "Gare"};
    for (int i = 0; i < 4; ++i) {
        DrawWord(painter, CounterCaption(i), captions[static_cast<std::size_t>(i)], small, Ink::Print);
    }
}

void DrawSheet(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    // The paper hides what lies under it, but for its rounded corners: filling all of it a dozen times over would be
    // half the time of the first paint.
    painter.setClipRegion(QRegion(kDesk) - kLeftPage.united(kRightPage).adjusted(6, 6, -6, -6));
    DrawDesk(painter);
    DrawLeavesUnderneath(painter);
    painter.setClipping(false);
    DrawPaper(painter);
    DrawFields(painter);
    DrawSlip(painter);
    DrawNotes(painter);
    DrawFoot(painter);
}

void PrintedLine(QPainter& painter)
{
    painter.setPen(QPen(Ink::Print, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

/// Maps drawings of a 40 by 40 field on `area`.
void ScaleTo(QPainter& painter, const QRectF& area)
{
    painter.translate(area.topLeft());
    painter.scale(area.width() / 40, area.height() / 40);
}

} // namespace

QFont PrintFont(int pixels, bool bold)
{
    QFont font = PageFont("Times New Roman", pixels);
    font.setBold(bold);
    return font;
}

QFont PenFont(int pixels)
{
    QFont font = PageFont("Times New Roman", pixels);
    font.setItalic(true);
    return font;
}

Picture::Drawing CaptionDrawing(TextView caption, bool heading)
{
    return [caption = ToQString(caption), heading](QPainter& painter, const QRectF& area) {
        painter.setFont(PrintFont(heading ? 16 : 15, heading));
        painter.setPen(heading ? Ink::Accent : Ink::Print);
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, caption);
    };
}

void DrawCalendarLeaf(QPainter& painter, const QRectF& area)
{
    ScaleTo(painter, area);
    PrintedLine(painter);
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
    ScaleTo(painter, area);
    PrintedLine(painter);
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
    ScaleTo(painter, area);
    PrintedLine(painter);
    QPainterPath stone;
    stone.moveTo(10, 35);
    stone.lineTo(10, 16);
    stone.cubicTo(10, 3, 30, 3, 30, 16);
    stone.lineTo(30, 35);
    stone.closeSubpath();
    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawPath(stone);
    painter.drawLine(QPointF(5, 35), QPointF(35, 35));
    painter.setFont(PrintFont(11, true));
    painter.setPen(Ink::Accent);
    painter.drawText(QRectF(10, 12, 20, 16), Qt::AlignCenter, QStringLiteral("km"));
}

void DrawCup(QPainter& painter, const QRectF& area)
{
    ScaleTo(painter, area);
    PrintedLine(painter);
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

PaperSheet::PaperSheet(QWidget* parent) : QWidget(parent)
{
    setFixedSize(kDesk.size());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setPalette(PagePalette());
}

void PaperSheet::paintEvent(QPaintEvent* event)
{
    const qreal scale = devicePixelRatioF();
    if (cache_.isNull() || cache_.devicePixelRatioF() != scale) {
        cache_ = QPixmap((QSizeF(size()) * scale).toSize());
        cache_.setDevicePixelRatio(scale);
        QPainter painter(&cache_);
        DrawSheet(painter);
    }
    QPainter painter(this);
    const QRect dirty = event->rect();
    painter.drawPixmap(dirty, cache_, QRectF(QPointF(dirty.topLeft()) * scale, QSizeF(dirty.size()) * scale).toRect());
}

} // namespace zelvia
