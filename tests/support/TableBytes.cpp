// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TableBytes.h"

namespace zelvia::test
{
namespace
{

bool IsText(int column)
{
    return column == TableBytes::Pace || column == TableBytes::Ground;
}

} // namespace

TableBytes::TableBytes(QDate start)
{
    for (int row = 1; row <= kRows; ++row) {
        for (int column = Number; column <= EachSeconds; ++column) {
            lines_ << (column == Number ? QByteArray::number(row) : IsText(column) ? QByteArray("\"\"") : "0");
        }
    }
    lines_ << start.toString(QStringLiteral("'#'yyyy-MM-dd'#'")).toLatin1();
}

TableBytes& TableBytes::Set(int row, Column column, const QByteArray& line)
{
    lines_[LinesBefore(row, column)] = line;
    return *this;
}

TableBytes& TableBytes::SetRow(int row, const QByteArray& columns)
{
    const QByteArrayList values = columns.split('|');
    for (int column = Km; column <= EachSeconds; ++column) {
        const QByteArray value = values.value(column - Km);
        lines_[LinesBefore(row, static_cast<Column>(column))] = IsText(column)    ? '"' + value + '"'
                                                                : value.isEmpty() ? QByteArray("0")
                                                                                  : value;
    }
    return *this;
}

TableBytes& TableBytes::SetStart(const QByteArray& line)
{
    lines_.last() = line;
    return *this;
}

QByteArray TableBytes::Cut(int lines) const
{
    return lines == 0 ? QByteArray() : lines_.first(lines).join("\r\n") + "\r\n";
}

TableBytes CountedTable(QDate start)
{
    TableBytes table(start);
    for (int row = 1; row <= TableBytes::kRows; ++row) {
        table.SetRow(row, QByteArray::number(row));
    }
    return table;
}

} // namespace zelvia::test
