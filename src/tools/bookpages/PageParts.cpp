// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bookpages/PageParts.h"

#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"

#include <QFontMetricsF>
#include <QPainter>

namespace zelvia
{
namespace
{

QFont Unhinted(QFont font)
{
    font.setHintingPreference(QFont::PreferNoHinting);
    // A ligature would be a single character when the text is searched.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.01);
    return font;
}

} // namespace

QFont BookFont(int pixels, bool bold)
{
    return Unhinted(PrintFont(pixels, bold));
}

QFont BookPen(int pixels)
{
    return Unhinted(PenFont(pixels));
}

QFont BookDateFont(int pixels)
{
    QFont font = Unhinted(PageFont("Times New Roman", pixels));
    font.setBold(true);
    return font;
}

Lines::Lines(const QString& text, const QFont& font, const QColor& ink, double width, Qt::Alignment alignment, int most)
    : layout_(std::make_shared<QTextLayout>(text, font)), ink_(ink)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_->setTextOption(option);
    layout_->beginLayout();
    for (QTextLine line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height_});
        height_ += line.height();
        if (layout_->lineCount() > most) {
            layout_->endLayout();
            *this = Lines(text.left(line.textStart() - 1) + QStringLiteral("…"), font, ink, width, alignment, most);
            return;
        }
    }
    layout_->endLayout();
}

void Lines::Draw(QPainter& painter, double x, double y) const
{
    painter.setPen(ink_);
    layout_->draw(&painter, {x, y});
}

void DrawWord(QPainter& painter, double x, double y, const QString& text, const QFont& font, const QColor& ink,
              Qt::Alignment alignment)
{
    if (alignment != Qt::AlignLeft) {
        const double width = QFontMetricsF(font).horizontalAdvance(text);
        x -= alignment.testFlag(Qt::AlignRight) ? width : width / 2;
    }
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QPointF(x, y), text);
}

void DrawRule(QPainter& painter, double x, double y, double width, double thickness, const QColor& ink)
{
    painter.fillRect(QRectF(x, y - thickness / 2, width, thickness), ink);
}

void AddHeading(PageFlow& flow, const BookHeading& heading, double below)
{
    QString title = QString::fromStdString(heading.title);
    title[0] = title[0].toUpper();
    const Lines lines(title, BookFont(19, true), Ink::PrintDark, flow.Width());
    flow.Skip(16);
    flow.Reserve(lines.Height() + below);
    flow.Mark(1, title);
    flow.Add(lines.Height() + 6, [lines](QPainter& painter) { lines.Draw(painter, 0, 0); });
}

void AddPart(PageFlow& flow, const BookParagraph& paragraph)
{
    const Lines lines(QString::fromStdString(paragraph.text), BookFont(12), Ink::Print, flow.Width());
    flow.Add(lines.Height() + 4, [lines](QPainter& painter) { lines.Draw(painter, 0, 0); });
}

void AddPart(PageFlow& flow, const BookFigures& figures)
{
    constexpr double height = 54;
    const QFont value = BookDateFont(18);
    const QFontMetricsF metrics(value);
    double all = 0;
    for (const BookFact& fact : figures.facts) {
        all += metrics.horizontalAdvance(QString::fromStdString(fact.value));
    }
    const double gap = (flow.Width() - all) / static_cast<double>(figures.facts.size());
    flow.Add(height, [facts = figures.facts, value, metrics, gap](QPainter& painter) {
        double x = gap / 2;
        for (const BookFact& fact : facts) {
            const QString text = QString::fromStdString(fact.value);
            const double width = metrics.horizontalAdvance(text);
            DrawWord(painter, x + width / 2, 14, QString::fromStdString(fact.caption), BookFont(12), Ink::Faded,
                     Qt::AlignHCenter);
            DrawWord(painter, x, 36, text, value, Ink::PrintDark);
            x += width + gap;
        }
    });
}

} // namespace zelvia
