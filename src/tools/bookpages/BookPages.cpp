// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bookpages/BookPages.h"

#include "diary/Fields.h"
#include "toolkit/PagePalette.h"
#include "tools/bookpages/PageParts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace zelvia
{
namespace
{

constexpr std::size_t kContentsPage = 2;

/// The kilometres of the weeks as a row of hills.
void DrawWeeks(QPainter& painter, const QRectF& area, const Book& book)
{
    for (const BookPart& part : book.chapters.front().parts) {
        const auto* chart = std::get_if<ChartData>(&part);
        if (chart == nullptr) {
            continue;
        }
        const int weeks = chart->ColumnCount();
        double highest = 1;
        for (int week = 1; week <= weeks; ++week) {
            highest = std::max(highest, chart->Data(1, week));
        }
        const double step = area.width() / weeks;
        for (int week = 1; week <= weeks; ++week) {
            const double height = std::max(1.0, area.height() * chart->Data(1, week) / highest);
            painter.fillRect(QRectF(area.left() + (week - 0.85) * step, area.bottom() - height, step * 0.7, height),
                             Ink::Edge);
        }
        return;
    }
}

void DrawTitlePage(QPainter& painter, const QSizeF& size, const Book& book)
{
    const double middle = size.width() / 2;
    const double top = size.height() * 0.17;
    DrawWord(painter, middle, top, QStringLiteral("Diario di corsa"), BookFont(26), Ink::PrintDark, Qt::AlignHCenter);
    DrawRule(painter, middle - 130, top + 26, 260, 2, Ink::Accent);
    DrawRule(painter, middle - 130, top + 31, 260, 0.8, Ink::Accent);
    DrawWord(painter, middle, top + 142, QString::number(book.year), BookDateFont(120), Ink::Accent, Qt::AlignHCenter);
    DrawRule(painter, middle - 130, top + 172, 260, 2, Ink::Accent);
    DrawWord(painter, middle, top + 212, QString::fromStdString(book.diary), BookPen(26), Ink::Pen, Qt::AlignHCenter);
    const QRectF hills(middle - 130, size.height() * 0.66, 260, size.height() * 0.12);
    DrawWeeks(painter, hills, book);
    DrawRule(painter, hills.left(), hills.bottom(), hills.width(), 1, Ink::PrintDark);
    QStringList figures;
    for (const BookFact& fact : book.facts) {
        if (fact.caption != "Media" && fact.caption != "Tempo") {
            figures << QString::fromStdString(fact.value) + u' ' + QString::fromStdString(fact.caption).toLower();
        }
    }
    DrawWord(painter, middle, hills.bottom() + 28, figures.join(QStringLiteral("  ·  ")), BookFont(14), Ink::Print,
             Qt::AlignHCenter);
}

using Parts = std::vector<BookPart>;

/// The height of what must follow a heading on its page.
double RoomFor(const PageFlow& flow, Parts::const_iterator part, Parts::const_iterator end)
{
    constexpr double someDay = 170;
    constexpr double line = 20;
    constexpr double drawing = 0.68; // Of the width.
    if (part == end) {
        return 0;
    }
    return std::visit(Overloaded{[&](const ChartData& chart) { return ChartHeight(chart, flow.Width()); },
                                 [&](const BookTable& table) { return TableRoom(flow, table); },
                                 [&](const BookParagraph&) { return line + RoomFor(flow, part + 1, end); },
                                 [&](const BookDay&) { return someDay; }, [](const BookHeading&) { return 0.0; },
                                 [&](const auto& /*drawn*/) { return flow.Width() * drawing; }},
                      *part);
}

void AddChapter(PageFlow& flow, const BookChapter& chapter)
{
    const QString title = QString::fromStdString(chapter.title);
    flow.NewRightPage(title);
    flow.Mark(0, title);
    constexpr double height = 74;
    flow.Add(height, [title, width = flow.Width()](QPainter& painter) {
        DrawRule(painter, 0, 1, width, 2, Ink::Accent);
        DrawRule(painter, 0, 5, width, 0.8, Ink::Accent);
        DrawWord(painter, 0, 39, title, BookDateFont(30), Ink::Accent);
        DrawRule(painter, 0, 52, width, 2, Ink::Accent);
    });
    for (auto part = chapter.parts.begin(); part != chapter.parts.end(); ++part) {
        if (const auto* heading = std::get_if<BookHeading>(&*part)) {
            AddHeading(flow, *heading, RoomFor(flow, part + 1, chapter.parts.end()));
        } else {
            std::visit(Overloaded{[](const BookHeading&) {}, [&](const auto& shown) { AddPart(flow, shown); }}, *part);
        }
    }
}

/// A line of the contents: its title, dots and the number of its page.
void DrawContentsLine(QPainter& painter, double y, double width, const BookMark& mark)
{
    const bool chapter = mark.level == 0;
    const QFont font = BookFont(chapter ? 15 : 12, chapter);
    const double left = chapter ? 0 : 18;
    const QString number = QString::number(mark.page + 1);
    const QFontMetricsF metrics(font);
    const QString title = metrics.elidedText(mark.title, Qt::ElideRight, width - left - 60);
    DrawWord(painter, left, y, title, font, Ink::PrintDark);
    DrawWord(painter, width, y, number, font, Ink::PrintDark, Qt::AlignRight);
    const double dots = left + metrics.horizontalAdvance(title) + 6;
    painter.setPen(QPen(Ink::Edge, 1, Qt::DotLine));
    painter.drawLine(QPointF(dots, y - 1.5), QPointF(width - metrics.horizontalAdvance(number) - 6, y - 1.5));
}

/// The chapters, and the parts of those that have as many as months at most.
std::vector<BookMark> ContentsOf(const std::vector<BookMark>& marks)
{
    constexpr std::ptrdiff_t most = 12;
    std::vector<BookMark> lines;
    for (auto mark = marks.begin(); mark != marks.end();) {
        const auto next = std::find_if(mark + 1, marks.end(), [](const BookMark& one) { return one.level == 0; });
        lines.push_back(*mark);
        if (std::count_if(mark, next, [](const BookMark& one) { return one.level == 1; }) <= most) {
            std::copy_if(mark, next, std::back_inserter(lines), [](const BookMark& one) { return one.level == 1; });
        }
        mark = next;
    }
    return lines;
}

void AddContents(PageFlow& flow)
{
    const std::vector<BookMark> lines = ContentsOf(flow.Marks());
    flow.AddTo(kContentsPage, 0, [lines, width = flow.Width(), height = flow.Height()](QPainter& painter) {
        constexpr double first = 66;
        constexpr double chapterStep = 26;
        constexpr double step = 16;
        DrawWord(painter, 0, 30, QStringLiteral("Indice"), BookDateFont(30), Ink::Accent);
        double needed = first;
        for (const BookMark& line : lines) {
            needed += line.level == 0 ? chapterStep : step;
        }
        const double squeeze = std::min(1.0, (height - first) / (needed - first));
        double y = first - chapterStep;
        for (const BookMark& line : lines) {
            y += (line.level == 0 ? chapterStep : step) * squeeze;
            DrawContentsLine(painter, y, width, line);
        }
    });
}

} // namespace

PageFlow LayOut(const Book& book, const BookPaper& paper)
{
    PageFlow flow(paper);
    flow.NewRightPage({});
    const QSizeF size(flow.Width(), flow.Height());
    flow.Add(flow.Height(), [size, book](QPainter& painter) { DrawTitlePage(painter, size, book); });
    flow.NewRightPage(QStringLiteral("Indice"));
    for (const BookChapter& chapter : book.chapters) {
        AddChapter(flow, chapter);
    }
    AddContents(flow);
    return flow;
}

} // namespace zelvia
