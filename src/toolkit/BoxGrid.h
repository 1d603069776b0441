// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "toolkit/Label.h"
#include "toolkit/TextBox.h"

#include <QFont>
#include <QMargins>
#include <QRect>

#include <functional>
#include <span>
#include <vector>

class QKeyEvent;

namespace zelvia
{

/// The name of an element of an array of controls: txtKm(5).
QString Indexed(const char* name, int index);

Label* MakeLabel(QWidget* parent, const QString& name, TextView caption, const QRect& place, const QFont& font);

/// A column of a grid.
struct GridColumn {
    const char* name; ///< Of its boxes; with several rows the number of the row follows.
    int maxLength;
    bool digitsOnly;
    Limit limit;
    CellFormat format;
    int left;
    int width;
    TextView spoken;                 ///< Its accessible name, in front of the row.
    Cell (*cell)(int row) = nullptr; ///< The value that a box shows.
    bool testedOnEnter = true;       ///< Enter tests the limit; otherwise leaving the box does.
};

/// Where the boxes of a grid are, in logical pixels, and how they look.
struct GridLook {
    int rows;
    int top;
    int step;
    int height;
    QFont font;
    QMargins margins = {};
    bool digitsRight = true; ///< Boxes that take digits only show them on the right.
};

/// The box of a column, alone or in a row of a grid.
TextBox* MakeBox(QWidget* parent, const GridColumn& column, const GridLook& look, int row = 1);

/// Signs between the boxes of a row, drawn by the caption of a label behind them. They appear when the box of one
/// column gets the focus, and go when it is left with 0.
struct GridSigns {
    int column = -1;
    TextView shown;
    TextView blank;
    std::function<Label*(int row)> label;
};

/// Rows of edit boxes. Enter moves on along the row and then to the next one. A number beyond its column's limit is
/// reported and keeps the focus; a box that is left has its text rewritten in the column's format. Up, Down, Ctrl+Home
/// and Ctrl+End move within a column, F6 between the grid and what is beside it.
/// Columns count from 0, rows from 1; any other raises error 9.
class BoxGrid
{
public:
    explicit BoxGrid(std::span<const GridColumn> columns) : columns_(columns) {}
    BoxGrid(const BoxGrid&) = delete;
    BoxGrid& operator=(const BoxGrid&) = delete;

    /// Creates the boxes row by row. The handlers and the signs must be set before.
    void Build(QWidget* parent, const GridLook& look);

    TextBox* Box(int column, int row) const;
    Text Content(int column, int row) const { return Box(column, row)->Content(); }
    double Number(int column, int row) const { return CellNumber(Content(column, row), Column(column).format); }
    const GridColumn& Column(int column) const { return columns_[static_cast<std::size_t>(column)]; }

    // A box and the value of its column at `place`; CellText, SetCell and CellHolds say how.
    Text Stored(int column, int place) const { return CellText(Column(column).cell(place), Column(column).format); }
    void Store(int column, int row, int place) const;
    bool Holds(int column, int row, int place) const;

    /// Hands each column and row to `visit`, row by row in the order of Enter.
    template <typename Visitor>
    void Visit(Visitor&& visit) const
    {
        for (int row = 1; row <= rows_; ++row) {
            for (int column = 0; column < Columns(); ++column) {
                visit(column, row);
            }
        }
    }

    /// Hands each box of a row to `visit`.
    template <typename Visitor>
    void VisitRow(int row, Visitor&& visit) const
    {
        for (int column = 0; column < Columns(); ++column) {
            visit(*Box(column, row));
        }
    }

    /// Gives each box its accessible name: the column and the row's number.
    void Speak(int rowsBefore = 0);
    /// Moves the focus by a key that no control has handled; false when it is none of the grid's. Leaving a box is
    /// tested as on Tab.
    bool MoveByKey(const QKeyEvent& key) const;

    void ShowSigns(int row, bool shown) const { signs.label(row)->SetCaption(shown ? signs.shown : signs.blank); }

    GridSigns signs; ///< None as long as no column is named.
    std::function<void()> Click;
    std::function<void()> Edited; ///< A key was pressed, even one that is thrown away, or the text was changed by hand.
    std::function<void()> LastEntered; ///< Enter in the last box.
    std::vector<Control*> beside;      ///< F6 goes from the grid to the first of them that takes the focus.

private:
    int Columns() const { return static_cast<int>(columns_.size()); }
    void Connect(int column, int row);
    bool LimitHolds(int column, int row) const;
    bool Leave(int column, int row) const;
    void MoveOn(int column, int row) const;
    void MoveBeside() const;
    bool MoveInColumn(int place, const QKeyEvent& key) const;

    std::span<const GridColumn> columns_;
    int rows_ = 0;
    std::vector<TextBox*> boxes_;  ///< Row by row.
    TextBox* returnsTo_ = nullptr; ///< The box that had the focus last.
};

} // namespace zelvia
