// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageArt.h"

#include "toolkit/Fonts.h"
#include "toolkit/QtText.h"
#include "windows/page/PageLayout.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace zelvia
{
namespace
{

using namespace PageLayout;

// Everything large is filled in upright rectangles, and only corners are smoothed: the painter deals the lines of a
// large smoothed, shaded or translucent area to threads, which costs the first paint more than the lines themselves.

/// The most lines of a translucent area that are filled without threads.
constexpr int kLines = 60;

constexpr int kCorner = 12; ///< What lies further than this from a corner of a sheet or its shadow has straight edges.

QColor Mixed(const QColor& from, const QColor& to, double part)
{
    const auto mix = [part](int first, int last) { return qRound(first + (last - first) * part); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

/// A sheet of paper with rounded corners.
void FillSheet(QPainter& painter, const QRect& sheet, int radius, const QColor& paper)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(paper);
    QRect edge(sheet.left(), sheet.top(), sheet.width(), 2 * radius);
    painter.drawRoundedRect(edge, radius, radius);
    edge.moveBottom(sheet.bottom());
    painter.drawRoundedRect(edge, radius, radius);
    painter.fillRect(sheet.adjusted(0, radius, 0, -radius), paper);
}

/// A hairline with rounded corners just inside `frame`.
void DrawFrame(QPainter& painter, const QRect& frame, int radius, const QColor& ink)
{
    const QRect across = frame.adjusted(radius, 0, -radius, 0);
    const QRect upright = frame.adjusted(0, radius, 0, -radius);
    painter.fillRect(across.left(), frame.top(), across.width(), 1, ink);
    painter.fillRect(across.left(), frame.bottom(), across.width(), 1, ink);
    painter.fillRect(frame.left(), upright.top(), 1, upright.height(), ink);
    painter.fillRect(frame.right(), upright.top(), 1, upright.height(), ink);

    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    const qreal size = 2.0 * radius;
    const qreal right = frame.right() + 0.5 - size;
    const qreal bottom = frame.bottom() + 0.5 - size;
    constexpr int quarter = 90 * 16;
    painter.drawArc(QRectF(frame.left() + 0.5, frame.top() + 0.5, size, size), quarter, quarter);
    painter.drawArc(QRectF(right, frame.top() + 0.5, size, size), 0, quarter);
    painter.drawArc(QRectF(frame.left() + 0.5, bottom, size, size), 2 * quarter, quarter);
    painter.drawArc(QRectF(right, bottom, size, size), 3 * quarter, quarter);
}

/// The soft shadow of a sheet in layers that lie over each other, given from the widest on. What the sheet hides is
/// left out.
void DrawShadow(QPainter& painter, const QRect& sheet, const QList<QRect>& layers, int radius, const QColor& shade)
{
    const QRect& widest = layers.first();
    const QRect straight = sheet.adjusted(kCorner, kCorner, -kCorner, -kCorner);
    const int cornersLeft = widest.left();
    const int cornersRight = straight.right() + 1;
    const int leftWidth = straight.left() - cornersLeft;
    const int rightWidth = widest.right() + 1 - cornersRight;
    const std::pair<int, int> rows[] = {{widest.top(), straight.top() - widest.top()},
                                        {straight.bottom() + 1, widest.bottom() - straight.bottom()}};
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    for (const auto& [top, height] : rows) {
        for (const QRect& corner :
             {QRect(cornersLeft, top, leftWidth, height), QRect(cornersRight, top, rightWidth, height)}) {
            painter.setClipRect(corner);
            for (const QRect& layer : layers) {
                painter.drawRoundedRect(layer, radius, radius);
            }
        }
    }
    painter.setClipping(false);
    for (const QRect& layer : layers) {
        painter.fillRect(straight.left(), layer.top(), straight.width(), qMax(0, sheet.top() - layer.top()), shade);
        painter.fillRect(straight.left(), sheet.bottom() + 1, straight.width(), layer.bottom() - sheet.bottom(), shade);
        for (int top = straight.top(); top <= straight.bottom(); top += kLines) {
            const int height = qMin(kLines, straight.bottom() + 1 - top);
            painter.fillRect(layer.left(), top, sheet.left() - layer.left(), height, shade);
            painter.fillRect(sheet.right() + 1, top, layer.right() - sheet.right(), height, shade);
        }
    }
}

/// The wood darkens from the top on; where the diary hides it, it is left out.
void DrawDesk(QPainter& painter)
{
    constexpr int band = 24;
    const QRect hidden = kLeftPage.united(kRightPage).adjusted(kCorner, kCorner, -kCorner, -kCorner);
    const QColor light = Ink::Desk.lighter(116);
    const QColor dark = Ink::Desk.darker(116);
    for (int top = 0; top < kDesk.height(); top += band) {
        const QColor wood = Mixed(light, dark, (top + band / 2.0) / kDesk.height());
        if (top >= hidden.top() && top + band - 1 <= hidden.bottom()) {
            painter.fillRect(0, top, hidden.left(), band, wood);
            painter.fillRect(hidden.right() + 1, top, kDesk.right() - hidden.right(), band, wood);
        } else {
            painter.fillRect(0, top, kDesk.width(), band, wood);
        }
    }
}

void DrawLeavesUnderneath(QPainter& painter)
{
    const QRect both = kLeftPage.united(kRightPage);
    QList<QRect> shadow;
    for (int depth = 8; depth > 0; depth -= 2) {
        shadow << both.adjusted(-depth, -depth + 3, depth, depth + 2);
    }
    DrawShadow(painter, both, shadow, 8, QColor(0, 0, 0, 23));

    constexpr int radius = 5;
    const std::pair<int, QColor> leaves[] = {{5, Ink::PaperShade}, {3, Ink::Paper}, {2, Ink::PaperShade}};
    for (const auto& [out, paper] : leaves) {
        const QRect leaf = both.adjusted(-out, 0, out, out);
        FillSheet(painter, {leaf.left(), both.top(), leaf.width(), 2 * radius}, radius, paper);
        FillSheet(painter, {leaf.left(), leaf.bottom() + 1 - 2 * radius, leaf.width(), 2 * radius}, radius, paper);
        painter.fillRect(leaf.left(), both.top() + radius, out, both.height() - radius, paper);
        painter.fillRect(both.right() + 1, both.top() + radius, out, both.height() - radius, paper);
    }
}

/// The fold of the binding: shades of the paper from the middle out to both sides. Drawn once for a few lines, which
/// are then repeated down the page.
void DrawFold(QPainter& painter)
{
    constexpr int reach = 46;
    constexpr int lines = 24;
    const qreal scale = painter.device()->devicePixelRatioF();
    QPixmap piece((QSizeF(2 * reach, lines) * scale).toSize());
    piece.setDevicePixelRatio(scale);
    QPainter fold(&piece);
    const QColor shade(90, 60, 30);
    const QColor valley = Mixed(Ink::Paper, QColor(60, 38, 18), 110 / 255.0);
    const struct {
        int side;      ///< -1 for the left page.
        QColor border; ///< Of the steep inner part, a sixth of all.
    } pages[] = {{-1, Mixed(Ink::Paper, shade, 34 / 255.0)}, {1, Mixed(Ink::Paper, shade, 30 / 255.0)}};
    for (const auto& page : pages) {
        for (int x = 0; x < reach; ++x) {
            constexpr double inner = 0.16;
            const double part = (x + 0.5) / reach;
            const QColor paper = part < inner ? Mixed(valley, page.border, part / inner)
                                              : Mixed(page.border, Ink::Paper, (part - inner) / (1 - inner));
            fold.fillRect(page.side < 0 ? reach - 1 - x : reach + x, 0, 1, lines, paper);
        }
    }
    static_assert(kRightPage.height() % lines == 0);
    for (int top = kRightPage.top(); top <= kRightPage.bottom(); top += lines) {
        painter.drawPixmap(kRightPage.left() - reach, top, piece);
    }
}

void DrawPaper(QPainter& painter)
{
    FillSheet(painter, kLeftPage.united(kRightPage), 4, Ink::Paper);
    DrawFold(painter);
    const QColor ink = Ink::Rule.darker(108);
    DrawFrame(painter, kLeftPage.adjusted(12, 10, -15, -10), 3, ink);
    DrawFrame(painter, kRightPage.adjusted(15, 10, -12, -10), 3, ink);
}

void DrawRule(QPainter& painter, int left, int right, int y)
{
    painter.fillRect(left, y, right - left, 1, Ink::Rule);
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
    DrawWord(painter, kFileCaption, "Diario", print, Ink::Print);
}

void DrawSlip(QPainter& painter)
{
    QList<QRect> shadow;
    for (int depth = 4; depth > 0; --depth) {
        shadow << kSlip.adjusted(-1, 1, depth, depth + 1);
    }
    DrawShadow(painter, kSlip, shadow, 4, QColor(60, 38, 18, 14));
    FillSheet(painter, kSlip, 3, Ink::Slip);
    DrawFrame(painter, kSlip, 3, Ink::Rule.darker(112));
    painter.fillRect(kSlip.left() + 16, kSlipTop + 30, kSlip.width() - 33, 2, Mixed(Ink::Slip, Ink::Accent, 0.7));
}

void DrawNotes(QPainter& painter)
{
    DrawWord(painter, kNotesHead, "Note", PrintFont(16, true), Ink::Accent);
    for (int line = 3; line <= 10; ++line) {
        DrawRule(painter, 636, 1144, Note(line).bottom() + 2);
    }
}

void DrawFoot(QPainter& painter)
{
    DrawRule(painter, 636, 1144, kCountersTop - 8);
    const QFont small = PrintFont(13);
    constexpr std::array<TextView, 4> captions = {"Giorno dell'anno", "Allenamenti", "Km percorsi", "Gare"};
    for (int i = 0; i < 4; ++i) {
        DrawWord(painter, CounterCaption(i), captions[static_cast<std::size_t>(i)], small, Ink::Print);
    }
}

void DrawSheet(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    DrawDesk(painter);
    DrawLeavesUnderneath(painter);
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

// The face that is there as a rule comes first: a search through the others costs time at the start.
constexpr TextView kPrintFace = "Liberation Serif";

QFont PrintFont(int pixels, bool bold)
{
    QFont font = PageFont(kPrintFace, pixels);
    font.setBold(bold);
    return font;
}

QFont DateFont()
{
    constexpr int pixels = 24;
    QFont font = PageFont("Times New Roman", pixels);
    font.setBold(true);
    return font;
}

QFont PenFont(int pixels)
{
    QFont font = PageFont(kPrintFace, pixels);
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
    setFont(PrintFont(15));
}

void PaperSheet::paintEvent(QPaintEvent* event)
{
    // The first page goes straight onto the screen; the copy for the many small repaints is made with the second.
    if (!shown_) {
        shown_ = true;
        QPainter painter(this);
        DrawSheet(painter);
        return;
    }
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
