// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/TableSheet.h"

#include <QByteArray>
#include <QList>

namespace zelvia::test
{

/// A table file line by line, worked on without the program's own reader and writer: 31 rows of 15 lines and the start
/// date. The lines of a row are in the order of the grid's columns, after the row's number.
class TableLines
{
public:
    static constexpr int kLines = 15;

    explicit TableLines(const QByteArray& bytes) : lines_(bytes.split('\n')) { lines_.removeLast(); }

    /// A table in which nothing is planned.
    static TableLines Blank()
    {
        QByteArray bytes;
        for (int row = 1; row <= TableGrid::kRows; ++row) {
            bytes += QByteArray::number(row) + "\r\n" + QByteArray("0\r\n").repeated(8) +
                     QByteArray("\"\"\r\n").repeated(2) + QByteArray("0\r\n").repeated(4);
        }
        return TableLines(bytes + "#2007-01-01#\r\n");
    }

    /// Texts with their quotes.
    TableLines& Set(int row, TableGrid::Column column, const QByteArray& value)
    {
        lines_[(row - 1) * kLines + 1 + column] = value + '\r';
        return *this;
    }

    /// The fourteen values of a row after its number, separated by "|".
    TableLines& SetRow(int row, const QByteArray& values)
    {
        const QList<QByteArray> parts = values.split('|');
        for (int column = 0; column < TableGrid::kColumns; ++column) {
            Set(row, static_cast<TableGrid::Column>(column), parts.at(column));
        }
        return *this;
    }

    /// As yyyy-mm-dd.
    TableLines& SetDate(const QByteArray& date)
    {
        lines_.last() = '#' + date + "#\r";
        return *this;
    }

    /// Only that many first lines.
    QByteArray First(int lines) const { return lines_.mid(0, lines).join('\n') + '\n'; }
    QByteArray Bytes() const { return lines_.join('\n') + '\n'; }

private:
    QList<QByteArray> lines_;
};

} // namespace zelvia::test
