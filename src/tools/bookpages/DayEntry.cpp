// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A day of the diary on the pages of a book.
#include "core/Conversions.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "tools/bookpages/PageParts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <numeric>

namespace zelvia
{
namespace
{

// Places, in logical pixels.
constexpr double kHeadHeight = 46;
constexpr double kGutter = 18;      ///< Between the columns.
constexpr double kLeftShare = 0.46; ///< Of the fields; notes are longer.
constexpr double kCaption = 76;
constexpr double kRow = 19;
constexpr int kPenPixels = 16;
constexpr int kMostLines = 4;

struct Cell {
    double height;
    PageFlow::Draw draw;
};

double HeightOf(const std::vector<Cell>& cells, std::size_t from, std::size_t to)
{
    const auto begin = cells.begin();
    return std::accumulate(begin + static_cast<std::ptrdiff_t>(from), begin + static_cast<std::ptrdiff_t>(to), 0.0,
                           [](double sum, const Cell& cell) { return sum + cell.height; });
}

/// The largest size in which all of these texts fit, or the smallest.
int PenPixels(const std::vector<std::string>& texts, double width)
{
    constexpr int smallest = 13;
    for (int pixels = kPenPixels; pixels > smallest; --pixels) {
        const QFontMetricsF metrics(BookPen(pixels));
        if (std::all_of(texts.begin(), texts.end(), [&](const std::string& text) {
                return metrics.horizontalAdvance(QString::fromStdString(text)) < width;
            })) {
            return pixels;
        }
    }
    return smallest;
}

Cell FieldCell(const BookFact& fact, double width)
{
    const Lines value(QString::fromStdString(fact.value), BookPen(kPenPixels), Ink::Pen, width - kCaption,
                      Qt::AlignLeft, kMostLines);
    const double height = std::max(kRow, value.Height() + 1);
    return {height, [=](QPainter& painter) {
                DrawWord(painter, 0, 14, QString::fromStdString(fact.caption), BookFont(12), Ink::Print);
                value.Draw(painter, kCaption, height - 1 - value.Height());
                DrawRule(painter, 0, height, width, 0.5, Ink::Rule);
            }};
}

std::vector<Cell> NoteCells(const std::vector<std::string>& notes, double width)
{
    std::vector<Cell> cells;
    if (notes.empty()) {
        return cells;
    }
    cells.push_back({kRow - 1, [](QPainter& painter) {
                         DrawWord(painter, 0, 14, QStringLiteral("Note"), BookFont(12, true), Ink::Accent);
                     }});
    const int pixels = PenPixels(notes, width);
    for (const std::string& note : notes) {
        const Lines lines(QString::fromStdString(note), BookPen(pixels), Ink::Pen, width, Qt::AlignLeft, kMostLines);
        const double height = std::max(kRow, lines.Height() + 1);
        cells.push_back({height, [=](QPainter& painter) {
                             lines.Draw(painter, 0, height - 1 - lines.Height());
                             DrawRule(painter, 0, height, width, 0.5, Ink::Rule);
                         }});
    }
    return cells;
}

void DrawCells(QPainter& painter, double x, double y, const std::vector<Cell>& cells, std::size_t from, std::size_t to)
{
    painter.save();
    painter.translate(x, y);
    for (std::size_t i = from; i < to; ++i) {
        cells[i].draw(painter);
        painter.translate(0, cells[i].height);
    }
    painter.restore();
}

/// Where the columns of a day are. Without notes they are equally wide.
struct Places {
    double left;
    double rightX;
    double right;
};

/// Fields on the left and, what is left of them, above the notes on the right, both columns about as high.
Cell Columns(const BookDay& day, const Places& places)
{
    std::vector<Cell> left;
    std::vector<Cell> right;
    for (const BookFact& fact : day.fields) {
        left.push_back(FieldCell(fact, places.left));
        right.push_back(FieldCell(fact, places.right));
    }
    const std::vector<Cell> notes = NoteCells(day.notes, places.right);
    const double noteHeight = HeightOf(notes, 0, notes.size());
    std::size_t split = left.size();
    double height = std::numeric_limits<double>::max();
    for (std::size_t k = left.size() + 1; k-- > 0;) {
        const double higher = std::max(HeightOf(left, 0, k), HeightOf(right, k, right.size()) + noteHeight);
        if (higher < height) {
            height = higher;
            split = k;
        }
    }
    return {height, [=](QPainter& painter) {
                DrawCells(painter, 0, 0, left, 0, split);
                DrawCells(painter, places.rightX, 0, right, split, right.size());
                DrawCells(painter, places.rightX, HeightOf(right, split, right.size()), notes, 0, notes.size());
            }};
}

/// The fields and notes of a day; notes alone take the whole width.
Cell Body(const BookDay& day, double width)
{
    if (day.fields.empty()) {
        return Columns(day, {0, 0, width});
    }
    const double left = width * (day.notes.empty() ? 0.5 : kLeftShare) - kGutter / 2;
    return Columns(day, {left, left + kGutter, width - left - kGutter});
}

Cell Splits(const BookDay& day, double width)
{
    if (day.splits.empty()) {
        return {0, [](QPainter&) {}};
    }
    QString all;
    for (const std::string& split : day.splits) {
        all += (all.isEmpty() ? QString() : QStringLiteral(" · ")) +
               QString::fromStdString(split).replace(u' ', QChar(QChar::Nbsp));
    }
    constexpr int pixels = 13;
    const Lines lines(all, BookPen(pixels), Ink::Pen, width - kCaption);
    return {lines.Height() + 3, [lines](QPainter& painter) {
                DrawWord(painter, 0, 14, QStringLiteral("Tempi Km"), BookFont(12), Ink::Print);
                lines.Draw(painter, kCaption, 1);
            }};
}

/// "21,097 km   2:00:45   5:43 al km"
QString Distance(const BookDay& day)
{
    QStringList parts;
    for (const BookFact& fact : day.head) {
        const char* const unit = fact.caption == "Km" ? " km" : fact.caption == "Media" ? " al km" : "";
        parts << QString::fromStdString(fact.value) + QLatin1String(unit);
    }
    return parts.join(QStringLiteral("    "));
}

void DrawRaceFlag(QPainter& painter, double x)
{
    const QRectF flag(x, 24, 38, 14);
    painter.fillRect(flag, Ink::Accent);
    DrawWord(painter, flag.center().x(), flag.bottom() - 3.5, QStringLiteral("GARA"), BookFont(10, true), Qt::white,
             Qt::AlignHCenter);
}

/// The date as at the head of the page.
void DrawHead(QPainter& painter, const BookDay& day, double width)
{
    DrawRule(painter, 0, 1, width, 1.6, Ink::Accent);
    DrawRule(painter, 0, 4, width, 0.6, Ink::Accent);
    DrawRule(painter, 0, kHeadHeight - 4, width, 0.9, Ink::Accent);
    DrawWord(painter, 20, 35, ToQString(PlainText(day.date.Day())), BookDateFont(34), Ink::Accent, Qt::AlignHCenter);
    const QFont weekday = BookDateFont(15);
    DrawWord(painter, 48, 21, ToQString(Format(day.date, "dddd")), weekday, Ink::PrintDark);
    const QFont month = BookDateFont(11);
    const QString monthText = ToQString(Format(day.date, "mmmm yyyy"));
    DrawWord(painter, 48, 35, monthText, month, Ink::Print);
    if (day.race) {
        DrawRaceFlag(painter, 48 + QFontMetricsF(month).horizontalAdvance(monthText) + 8);
    }
    DrawWord(painter, width - 3, 31, Distance(day), BookPen(20), Ink::Pen, Qt::AlignRight);
}

} // namespace

void AddPart(PageFlow& flow, const BookDay& day)
{
    constexpr double below = 14;
    const double width = flow.Width();
    const Cell body = Body(day, width);
    const Cell splits = Splits(day, width);
    const double height = kHeadHeight + body.height + splits.height + below;
    flow.Reserve(height - below);
    flow.Mark(2, ToQString(Format(day.date, "d dddd")));
    flow.Add(height - below, [=](QPainter& painter) {
        DrawHead(painter, day, width);
        DrawCells(painter, 0, kHeadHeight, {body, splits}, 0, 2);
    });
    flow.Skip(below);
}

} // namespace zelvia
