// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageArt.h"

#include "toolkit/Pixels.h"
#include "toolkit/QtText.h"
#include "windows/page/PageHead.h"
#include "windows/page/PageLayout.h"
#include "windows/page/PaperGrain.h"

#include <QFontDatabase>
#include <QPainter>

#include <algorithm>

namespace zelvia
{
namespace
{

using namespace PageLayout;

// Everything large is filled in upright rectangles, and only corners are smoothed: the painter deals the lines of a
// large smoothed, shaded or translucent area to threads. The whole sheet takes 0.8 ms this way and 2.0 ms in plain
// rounded rectangles, whose straight edges would also be blurred on a screen of 1.5 times the size.

/// The most lines of a translucent area that are filled without threads.
constexpr int kLines = 60;

constexpr double kCorner =
    12; ///< What lies further than this from a corner of a sheet or its shadow has straight edges.

/// Smooths the edges of what is drawn meanwhile.
class Smoothly
{
public:
    explicit Smoothly(QPainter& painter) : painter_(painter) { painter_.setRenderHint(QPainter::Antialiasing); }
    ~Smoothly() { painter_.setRenderHint(QPainter::Antialiasing, false); }
    Smoothly(const Smoothly&) = delete;
    Smoothly& operator=(const Smoothly&) = delete;

private:
    QPainter& painter_;
};

// What follows is drawn by a painter that counts in pixels.

/// A sheet of paper with rounded corners.
void FillSheet(QPainter& painter, const QRect& sheet, int radius, const QColor& paper)
{
    {
        const Smoothly smoothly(painter);
        painter.setPen(Qt::NoPen);
        painter.setBrush(paper);
        QRect edge(sheet.left(), sheet.top(), sheet.width(), 2 * radius);
        painter.drawRoundedRect(edge, radius, radius);
        edge.moveBottom(sheet.bottom());
        painter.drawRoundedRect(edge, radius, radius);
    }
    painter.fillRect(sheet.adjusted(0, radius, 0, -radius), paper);
}

/// A line with rounded corners just inside `frame`.
void DrawFrame(QPainter& painter, const QRect& frame, int radius, int line, const QColor& ink)
{
    const QRect across = frame.adjusted(radius, 0, -radius, 0);
    const QRect upright = frame.adjusted(0, radius, 0, -radius);
    painter.fillRect(across.left(), frame.top(), across.width(), line, ink);
    painter.fillRect(across.left(), frame.bottom() + 1 - line, across.width(), line, ink);
    painter.fillRect(frame.left(), upright.top(), line, upright.height(), ink);
    painter.fillRect(frame.right() + 1 - line, upright.top(), line, upright.height(), ink);

    const Smoothly smoothly(painter);
    painter.setPen(QPen(ink, line));
    painter.setBrush(Qt::NoBrush);
    const qreal size = 2.0 * radius;
    const qreal inset = line / 2.0;
    const QRectF inner = QRectF(frame).adjusted(inset, inset, -inset - size, -inset - size);
    const QPointF corners[] = {inner.topRight(), inner.topLeft(), inner.bottomLeft(), inner.bottomRight()};
    int from = 0;
    for (const QPointF& corner : corners) {
        constexpr int quarter = 90 * 16;
        painter.drawArc(QRectF(corner, QSizeF(size, size)), from, quarter);
        from += quarter;
    }
}

/// The soft shadow of a sheet in layers over each other, given from the widest on. What the sheet hides is
/// left out.
void DrawShadow(QPainter& painter, const Pixels& pixels, const QRect& place, const QList<QRect>& places, double round,
                const QColor& shade)
{
    QList<QRect> layers;
    std::transform(places.begin(), places.end(), std::back_inserter(layers),
                   [&pixels](const QRect& layer) { return pixels.Of(layer); });
    const QRect sheet = pixels.Of(place);
    const int radius = pixels.Of(round);
    const int corner = pixels.Of(kCorner);
    const QRect& widest = layers.first();
    const QRect straight = sheet.adjusted(corner, corner, -corner, -corner);
    const QRegion corners = QRegion(widest) - QRect(straight.left(), widest.top(), straight.width(), widest.height()) -
                            QRect(widest.left(), straight.top(), widest.width(), straight.height());
    {
        const Smoothly smoothly(painter);
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        for (const QRect& piece : corners) {
            painter.setClipRect(piece);
            // Only the piece of a layer around the corner: a rounded rectangle costs by its lines, clipped ones too.
            // Whole layers take 5.6 of 136 million instructions of the start.
            const QRect around = piece.adjusted(-2 * radius, -2 * radius, 2 * radius, 2 * radius);
            for (const QRect& layer : layers) {
                painter.drawRoundedRect(layer & around, radius, radius);
            }
        }
        painter.setClipping(false);
    }
    for (const QRect& layer : layers) {
        for (const QRect& side : QRegion(layer) - sheet - corners) {
            for (int top = side.top(); top <= side.bottom(); top += kLines) {
                painter.fillRect(side.left(), top, side.width(), qMin(kLines, side.bottom() + 1 - top), shade);
            }
        }
    }
}

void DrawLeavesUnderneath(QPainter& painter, const Pixels& pixels)
{
    const QRect place = kLeftPage.united(kRightPage);
    QList<QRect> shadow;
    for (int depth = 8; depth > 0; depth -= 2) {
        shadow << place.adjusted(-depth, -depth + 3, depth, depth + 2);
    }
    DrawShadow(painter, pixels, place, shadow, 8, QColor(0, 0, 0, 23));

    const QRect both = pixels.Of(place);
    const int radius = pixels.Of(5.0);
    // The edges of the leaves below, each a little further out than the one above.
    constexpr int leaves = 7;
    for (int wide = leaves; wide > 0; --wide) {
        const int out = pixels.Of(static_cast<double>(wide));
        const QColor paper = wide % 2 == 0 ? Ink::Paper : Ink::PaperShade.darker(108);
        const QRect leaf = both.adjusted(-out, 0, out, out);
        FillSheet(painter, {leaf.left(), both.top(), leaf.width(), 2 * radius}, radius, paper);
        FillSheet(painter, {leaf.left(), leaf.bottom() + 1 - 2 * radius, leaf.width(), 2 * radius}, radius, paper);
        painter.fillRect(leaf.left(), both.top() + radius, out, both.height() - radius, paper);
        painter.fillRect(both.right() + 1, both.top() + radius, out, both.height() - radius, paper);
    }
}

/// The fold of the binding: shades of the paper from the middle out to both sides. Drawn once for a few lines, which
/// are then repeated down the page.
void DrawFold(QPainter& painter, const Pixels& pixels)
{
    const int reach = pixels.Of(46.0);
    constexpr int lines = 24;
    QPixmap piece(2 * reach, lines);
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
    const QRect right = pixels.Of(kRightPage);
    for (int top = right.top(); top <= right.bottom(); top += lines) {
        const int height = qMin(lines, right.bottom() + 1 - top);
        painter.drawPixmap(right.left() - reach, top, piece, 0, 0, 2 * reach, height);
    }
}

void DrawPaper(QPainter& painter, const Pixels& pixels)
{
    FillSheet(painter, pixels.Of(kLeftPage.united(kRightPage)), pixels.Of(4.0), Ink::Paper);
    DrawCurl(painter, pixels, kLeftPage.united(kRightPage));
    DrawGrain(painter, pixels, kLeftPage.united(kRightPage));
    DrawFold(painter, pixels);
    const QColor ink = Ink::Rule.darker(108);
    for (const QRect& frame : {kLeftPage.adjusted(12, 10, -15, -10), kRightPage.adjusted(15, 10, -12, -10)}) {
        DrawFrame(painter, pixels.Of(frame), pixels.Of(3.0), pixels.Of(1.0), ink);
    }
}

void DrawSlip(QPainter& painter, const Pixels& pixels)
{
    QList<QRect> shadow;
    for (int depth = 4; depth > 0; --depth) {
        shadow << kSlip.adjusted(-1, 1, depth, depth + 1);
    }
    DrawShadow(painter, pixels, kSlip, shadow, 4, QColor(60, 38, 18, 14));
    const QRect slip = pixels.Of(kSlip);
    FillSheet(painter, slip, pixels.Of(3.0), Ink::Slip);
    DrawFrame(painter, slip, pixels.Of(3.0), pixels.Of(1.0), Ink::Rule.darker(112));
    const QRect line(kSlip.left() + 16, kSlipTop + 30, kSlip.width() - 33, 2);
    painter.fillRect(pixels.Line(line), Mixed(Ink::Slip, Ink::Accent, 0.7));
}

void DrawRules(QPainter& painter, const Pixels& pixels)
{
    const auto rule = [&](int left, int right, int y) {
        painter.fillRect(pixels.Line(QRect(left, y, right - left, 1)), Ink::Rule);
    };
    for (int row = 0; row < kRows; ++row) {
        rule(kCaptionLeft, kRowRight, RowTop(row) + kRowHeight + 1);
    }
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        rule(636, 1144, Note(line).bottom() + 2);
    }
    for (const DateRule& date : kDateRules) {
        painter.fillRect(pixels.Line(date.place), date.accent ? Ink::Accent : Ink::Rule);
    }
}

/// The printed words that are no control.
void DrawWords(QPainter& painter)
{
    const auto word = [&painter](const QRect& place, TextView text, const QFont& font) {
        DrawWord(painter, place, ToQString(text), font, Ink::Print);
    };
    const QFont print = PrintFont(15);
    word(Caption(Tempo), "Tempo", print);
    word(Caption(Media), "Media", print);
    DrawWord(painter, kPer, QStringLiteral("x"), print, Ink::Print, Qt::AlignCenter);
    DrawWord(painter, kIn, QStringLiteral("@"), print, Ink::Print, Qt::AlignCenter);
    word(kFileCaption, "Diario", print);
    DrawWord(painter, kNotesHead, QStringLiteral("Note"), PrintFont(16, true), Ink::Accent);
    DrawArrowsAtRest(painter, kDayCell, QStringLiteral("giorno"));
    DrawArrowsAtRest(painter, kMonthCell, QStringLiteral("mese"));
    const QFont small = PrintFont(13);
    int index = 0;
    for (const TextView caption : {"Giorno dell'anno", "Allenamenti", "Km percorsi", "Gare"}) {
        word(CounterCaption(index), caption, small);
        ++index;
    }
}

} // namespace

/// The wood darkens from the top on.
void DrawDesk(QPainter& painter, const QRect& place)
{
    const Pixels pixels(painter);
    const QRect desk = pixels.Of(place);
    const int band = pixels.Of(24.0);
    const QColor light = Ink::Desk.lighter(116);
    const QColor dark = Ink::Desk.darker(116);
    for (int top = 0; top < desk.height(); top += band) {
        painter.fillRect(desk.left(), desk.top() + top, desk.width(), band,
                         Mixed(light, dark, (top + band / 2.0) / desk.height()));
    }
}

void DrawPage(QPainter& painter)
{
    {
        const Pixels pixels(painter);
        DrawLeavesUnderneath(painter, pixels);
        DrawPaper(painter, pixels);
        DrawRules(painter, pixels);
        DrawSlip(painter, pixels);
    }
    DrawWords(painter);
}

void DrawWord(QPainter& painter, const QRectF& place, const QString& word, const QFont& font, const QColor& ink,
              Qt::Alignment alignment)
{
    const double factor = painter.deviceTransform().m11() / painter.device()->devicePixelRatioF();
    painter.save();
    painter.scale(1 / factor, 1 / factor);
    painter.setFont(Enlarged(font, factor));
    painter.setPen(ink);
    painter.drawText(QRectF(place.topLeft() * factor, place.size() * factor), static_cast<int>(alignment), word);
    painter.restore();
}

QFont Enlarged(QFont font, double factor)
{
    font.setPixelSize(std::max(qRound(font.pixelSize() * factor), 1));
    return font;
}

QColor Mixed(const QColor& from, const QColor& to, double part)
{
    const auto mix = [part](int first, int last) { return qRound(first + (last - first) * part); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QFont DateFont()
{
    QFont font = PageFont("Times New Roman", 24);
    font.setBold(true);
    return font;
}

QFont HeadFont()
{
    static const QStringList families = [] {
        // Not QFontDatabase::hasFamily: for a family that is missing it asks fontconfig too.
        const QStringList installed = QFontDatabase::families();
        QStringList kin = DateFont().families();
        const auto found =
            std::find_if(kin.begin(), kin.end(), [&](const QString& family) { return installed.contains(family); });
        std::rotate(kin.begin(), found != kin.end() ? found : kin.begin(), kin.end());
        return kin;
    }();
    QFont font = DateFont();
    font.setFamilies(families);
    return font;
}

Picture::Drawing CaptionDrawing(TextView caption, bool heading)
{
    return [caption = ToQString(caption), heading](QPainter& painter, const QRectF& area) {
        DrawWord(painter, area, caption, PrintFont(heading ? 16 : 15, heading), heading ? Ink::Accent : Ink::Print);
    };
}

} // namespace zelvia
