// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>

namespace zelvia::test
{

/// A training table's file line by line, worked on without the program's own reader and writer: 31 rows of 15 lines and
/// the start date.
class TableBytes
{
public:
    static constexpr int kRows = 31;
    static constexpr int kColumns = 15;
    static constexpr int kLines = kRows * kColumns + 1;

    /// Lines of a row, counted from 1.
    enum Column {
        Number = 1,
        Km,
        Metres,
        Hours,
        Minutes,
        Seconds,
        AverageMinutes,
        AverageSeconds,
        Thousandths,
        Pace,
        Ground,
        Times,
        Distance,
        EachMinutes,
        EachSeconds
    };

    /// A table without a demand.
    explicit TableBytes(QDate start);

    /// Sets the line of a value as in the file.
    TableBytes& Set(int row, Column column, const QByteArray& line);
    /// Sets a row, its columns from the kilometres on separated by "|"; those left out or empty are nothing.
    TableBytes& SetRow(int row, const QByteArray& columns);
    TableBytes& SetStart(const QByteArray& line);

    QByteArray Bytes() const { return Cut(kLines); }
    /// The first lines only.
    QByteArray Cut(int lines) const;
    /// How many lines come before that of a value.
    static int LinesBefore(int row, Column column) { return (row - 1) * kColumns + column - 1; }

private:
    QList<QByteArray> lines_;
};

/// A table whose rows ask for as many kilometres as they have for their number.
TableBytes CountedTable(QDate start);

} // namespace zelvia::test
