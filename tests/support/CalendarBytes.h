// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

namespace zelvia::test
{

/// A calendar file line by line, worked on without the program's own reader and writer: 100 rows of 15 lines.
class CalendarBytes
{
public:
    static constexpr int kRows = 100;
    static constexpr int kLines = 15;

    /// A blank calendar: the row numbers and nothing else.
    CalendarBytes();

    /// The fourteen values of a row after its number, separated by "|" in the order of the file; what is left empty is
    /// 0 or no text. "8|2|2026|Corrida|Borgo|10||412".
    CalendarBytes& SetRow(int row, const QByteArray& values);
    CalendarBytes& SetLine(int row, int line, const QByteArray& value);

    QByteArray Bytes() const { return Bytes(kRows * kLines); }
    /// The first `lines` lines alone.
    QByteArray Bytes(int lines) const;

private:
    QList<QByteArray> lines_;
};

} // namespace zelvia::test
