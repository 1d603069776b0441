// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of a book.
#include "toolkit/PagePalette.h"
#include "tools/bookpages/PageParts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace zelvia
{
namespace
{

constexpr double kColumnGap = 10;

/// As wide as what the columns hold.
std::vector<double> NaturalWidths(const BookTable& table, const QFont& font)
{
    const QFontMetricsF metrics(font);
    std::vector<double> widths;
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        double widest = metrics.horizontalAdvance(QString::fromStdString(table.columns[column].heading));
        for (const auto& row : table.rows) {
            widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(row[column])));
        }
        widths.push_back(widest + kColumnGap);
    }
    return widths;
}

double Sum(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

bool FitsTwice(const BookTable& table, double width)
{
    constexpr double gutter = 20;
    return 2 * Sum(NaturalWidths(table, BookFont(12, true))) + gutter < width;
}

/// The widths of a table's columns over the whole width: as wide as what they hold, the widest giving way or taking
/// what is left.
std::vector<double> ColumnWidths(const BookTable& table, const QFont& font, double width)
{
    std::vector<double> widths = NaturalWidths(table, font);
    constexpr double least = 100;
    auto widest = std::max_element(widths.begin(), widths.end());
    const double all = Sum(widths) - kColumnGap;
    if (all > width) {
        *widest = std::max(least, *widest - (all - width));
    }
    // Still too wide with several long columns: all give way. With room left all take their share of it.
    const double share = (width + kColumnGap) / Sum(widths);
    for (double& one : widths) {
        one *= share;
    }
    return widths;
}

constexpr std::size_t kGutterBlanks = 4; ///< Between the halves of a table.

/// A long table of few columns as two halves side by side.
BookTable Folded(const BookTable& table)
{
    const std::size_t half = (table.rows.size() + 1) / 2;
    BookTable folded = table;
    folded.columns.push_back({std::string(kGutterBlanks, ' ')});
    folded.columns.insert(folded.columns.end(), table.columns.begin(), table.columns.end());
    folded.rows.resize(half);
    for (std::size_t i = 0; i < half; ++i) {
        const auto second =
            half + i < table.rows.size() ? table.rows[half + i] : std::vector<std::string>(table.columns.size());
        folded.rows[i].emplace_back();
        folded.rows[i].insert(folded.rows[i].end(), second.begin(), second.end());
    }
    return folded;
}

/// A table as it is written, row by row.
class TableOnPage
{
public:
    TableOnPage(const BookTable& table, double width, std::size_t bestCells)
        : table_(table), font_(BookFont(table.columns.size() > 6 ? 11 : 12)), best_(font_), bestCells_(bestCells)
    {
        best_.setBold(true);
        widths_ = ColumnWidths(table, best_, width);
        AddRow(Heads(), BookFont(11), Ink::Faded, Ink::Accent);
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            const bool best = table.best == i;
            AddRow(table.rows[i], best ? best_ : font_, best ? Ink::Accent : Ink::PrintDark, Ink::Rule);
        }
    }

    double Height() const
    {
        return std::accumulate(rows_.begin(), rows_.end(), 0.0,
                               [](double sum, const Row& row) { return sum + row.height; });
    }

    /// The room that it begins with: for all of it if it is short, else for its head and a row.
    double Room(const PageFlow& flow) const
    {
        constexpr double whole = 0.6;
        return Height() < flow.Height() * whole ? Height() : rows_[0].height + rows_[1].height;
    }

    /// Repeats the head on each page.
    void AddTo(PageFlow& flow) const
    {
        flow.Reserve(Room(flow));
        flow.Add(rows_[0].height, rows_[0].draw);
        for (std::size_t i = 1; i < rows_.size(); ++i) {
            flow.Reserve(rows_[i].height);
            if (flow.AtTop()) {
                flow.Add(rows_[0].height, rows_[0].draw);
            }
            flow.Add(rows_[i].height, rows_[i].draw);
        }
    }

private:
    struct Row {
        double height;
        PageFlow::Draw draw;
    };

    std::vector<std::string> Heads() const
    {
        std::vector<std::string> heads;
        for (const BookTable::Column& column : table_.columns) {
            heads.push_back(column.heading);
        }
        return heads;
    }

    void AddRow(const std::vector<std::string>& cells, const QFont& font, const QColor& ink, const QColor& rule)
    {
        constexpr double padding = 3;
        std::vector<Lines> lines;
        double height = 0;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool plain = i >= bestCells_ && ink == Ink::Accent;
            lines.emplace_back(QString::fromStdString(cells[i]), plain ? font_ : font, plain ? Ink::PrintDark : ink,
                               widths_[i] - kColumnGap, table_.columns[i].right ? Qt::AlignRight : Qt::AlignLeft);
            height = std::max(height, lines.back().Height());
        }
        const double bottom = height + 2 * padding;
        const double width = Sum(widths_) - kColumnGap;
        rows_.push_back({bottom, [lines, widths = widths_, bottom, width, rule](QPainter& painter) {
                             double x = 0;
                             for (std::size_t i = 0; i < lines.size(); ++i) {
                                 lines[i].Draw(painter, x, padding);
                                 x += widths[i];
                             }
                             DrawRule(painter, 0, bottom, width, 0.6, rule);
                         }});
    }

    BookTable table_;
    QFont font_;
    QFont best_;
    std::size_t bestCells_; ///< How many cells of the best row are pointed out.
    std::vector<double> widths_;
    std::vector<Row> rows_;
};

/// The table, or its pieces, each of which is read down its left and then down its right half.
std::vector<TableOnPage> Tables(const BookTable& table, double width)
{
    constexpr std::size_t shortest = 10; // Of those that are folded.
    constexpr std::size_t piece = 40;
    const std::size_t columns = table.columns.size();
    std::vector<TableOnPage> tables;
    if (table.rows.size() <= shortest || !FitsTwice(table, width)) {
        tables.emplace_back(table, width, columns);
        return tables;
    }
    for (std::size_t first = 0; first < table.rows.size(); first += piece) {
        BookTable part{table.columns, {}, first == 0 ? table.best : std::nullopt};
        const auto begin = table.rows.begin() + static_cast<std::ptrdiff_t>(first);
        part.rows.assign(begin, begin + static_cast<std::ptrdiff_t>(std::min(piece, table.rows.size() - first)));
        tables.emplace_back(Folded(part), width, columns);
    }
    return tables;
}

} // namespace

double TableRoom(const PageFlow& flow, const BookTable& table)
{
    return Tables(table, flow.Width()).front().Room(flow);
}

void AddPart(PageFlow& flow, const BookTable& table)
{
    for (const TableOnPage& piece : Tables(table, flow.Width())) {
        piece.AddTo(flow);
        flow.Skip(8);
    }
}

} // namespace zelvia
