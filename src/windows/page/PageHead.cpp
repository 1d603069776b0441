// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The head of the page, the print beside the arrows, and the index of the months.
#include "windows/page/PageHead.h"

#include "toolkit/Pixels.h"
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageLayout.h"

#include <QPainter>

#include <array>

namespace zelvia
{
namespace
{

using namespace PageLayout;

constexpr int kDays = 7;
constexpr int kMonths = 12;

/// Writes in the face of the date, made larger or smaller by the painter: each size of its own would be one more font
/// to load at the start.
void DrawInHeadFace(QPainter& painter, const QRectF& place, const QString& text, double pixels, const QColor& ink,
                    Qt::Alignment alignment)
{
    const QFont face = HeadFont();
    const double factor = pixels / face.pixelSize();
    painter.save();
    painter.scale(factor, factor);
    painter.setFont(face);
    painter.setPen(ink);
    painter.drawText(QRectF(place.topLeft() / factor, place.size() / factor),
                     static_cast<int>(alignment) | Qt::TextDontClip, text);
    painter.restore();
}

void DrawBox(QPainter& painter, const QRect& box, const QColor& border, const QColor& inside)
{
    const Pixels pixels(painter);
    painter.fillRect(pixels.Of(box), inside);
    pixels.DrawFrame(pixels.Of(box), pixels.Of(1.0), border);
}

QString FirstLetter(const Text& name)
{
    return ToQString(name).left(1).toUpper();
}

/// From Monday on.
void DrawWeek(QPainter& painter, CalendarDate date)
{
    constexpr int step = 28;
    constexpr int size = 25;
    constexpr int right = 434;
    const int today = static_cast<int>((date.Weekday() + kDays - 1) % kDays);
    for (int day = 0; day < kDays; ++day) {
        const CalendarDate one = date.PlusDays(day - today);
        const QRect box(right - (kDays - day) * step, 21, size, size);
        const bool marked = day == today;
        const QColor ink = day == kDays - 1 ? Ink::Accent : Ink::Print;
        DrawWord(painter, box.translated(0, -19).adjusted(0, 0, 0, -7), FirstLetter(Format(one, "dddd")), PrintFont(13),
                 ink, Qt::AlignCenter);
        DrawBox(painter, box, marked ? Ink::Accent : Ink::Rule.darker(108), marked ? Ink::Accent : Ink::Slip);
        DrawWord(painter, box, ToQString(Format(one, "d")), marked ? PrintFont(16, true) : PrintFont(15),
                 marked ? Ink::Slip : ink, Qt::AlignCenter);
    }
}

} // namespace

void DrawDateHead(QPainter& painter, const QString& text, CalendarDate date)
{
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    constexpr int parts = 4;
    if (words.size() != parts) {
        return;
    }
    constexpr Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    DrawInHeadFace(painter, {2, -5, 72, 62}, words[1], 56, Ink::Accent, Qt::AlignCenter);
    DrawInHeadFace(painter, {82, 3, 150, 27}, words[0], 24, Ink::PrintDark, left);
    DrawInHeadFace(painter, {82, 28, 150, 21}, words[2] + u' ' + words[3], 16, Ink::Print, left);
    DrawWeek(painter, date);
}

void DrawArrowsAtRest(QPainter& painter, const QRect& cell, const QString& part)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink::Pencil);
    const QPointF middle = QRectF(DateSpin(cell)).center();
    for (const int side : {-1, 1}) {
        const qreal foot = middle.y() + side * 4;
        painter.drawPolygon(QPolygonF{{middle.x() - 6, foot}, {middle.x() + 6, foot}, {middle.x(), foot + side * 8}});
    }
    painter.restore();
    DrawWord(painter, QRectF(cell).adjusted(0, kArrowsHeight + 2, 0, 0), part, PrintFont(13), Ink::Print,
             Qt::AlignCenter);
}

void DrawUnits(QPainter& painter, const QRectF& area)
{
    constexpr std::array<const char*, 3> units = {"km", "10 m", "m"};
    int index = 0;
    for (const char* unit : units) {
        const int left = Spin(Km, index++).right() + 4 - kSpinLeft;
        DrawWord(painter, {area.left() + left, area.top(), kDistanceStep * 1.0, area.height()}, QLatin1String(unit),
                 PrintFont(13), Ink::Print);
    }
}

void DrawThumbIndex(QPainter& painter, int month)
{
    constexpr int step = kThumbIndex.height() / kMonths;
    constexpr int behind = 7; ///< How much narrower the others are.
    for (int tab = 1; tab <= kMonths; ++tab) {
        const bool here = tab == month;
        const QRect place(here ? 0 : behind, (tab - 1) * step, kThumbIndex.width() - (here ? 0 : behind), step - 2);
        {
            const Pixels pixels(painter);
            painter.fillRect(pixels.Of(place), here ? Ink::Accent : Ink::PaperShade);
        }
        const CalendarDate first(CalendarDate::kFirstYear, static_cast<unsigned>(tab), 1);
        DrawWord(painter, place, FirstLetter(Format(first, "mmmm")), here ? PrintFont(16, true) : PrintFont(13),
                 here ? Ink::Slip : Ink::Print, Qt::AlignCenter);
    }
}

} // namespace zelvia
