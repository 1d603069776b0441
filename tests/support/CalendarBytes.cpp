// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/CalendarBytes.h"

namespace zelvia::test
{
namespace
{

bool IsText(int line)
{
    return line == 5 || line == 6 || line == 14;
}

} // namespace

CalendarBytes::CalendarBytes()
{
    for (int row = 1; row <= kRows; ++row) {
        lines_ << QByteArray::number(row);
        for (int line = 2; line <= kLines; ++line) {
            lines_ << (IsText(line) ? "\"\"" : "0");
        }
    }
}

CalendarBytes& CalendarBytes::SetRow(int row, const QByteArray& values)
{
    const QList<QByteArray> parts = values.split('|');
    for (int line = 2; line <= kLines; ++line) {
        const QByteArray value = parts.value(line - 2);
        SetLine(row, line, IsText(line) ? '"' + value + '"' : value.isEmpty() ? QByteArray("0") : value);
    }
    return *this;
}

CalendarBytes& CalendarBytes::SetLine(int row, int line, const QByteArray& value)
{
    lines_[(row - 1) * kLines + line - 1] = value;
    return *this;
}

QByteArray CalendarBytes::Bytes(int lines) const
{
    QByteArray bytes;
    for (const QByteArray& line : lines_.mid(0, lines)) {
        bytes += line + "\r\n";
    }
    return bytes;
}

} // namespace zelvia::test
