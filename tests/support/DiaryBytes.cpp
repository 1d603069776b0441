// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"

namespace zelvia::test
{
namespace
{

QByteArray StampOf(QDate date)
{
    return date.toString(QStringLiteral("'#'yyyy-MM-dd'#'")).toLatin1();
}

bool IsNumber(int line)
{
    return line == 1 || line == 5 || line == 6 || (line >= 10 && line <= 15) || (line >= 121 && line <= 126);
}

} // namespace

DiaryBytes DiaryBytes::Blank(int year)
{
    DiaryBytes diary{QByteArray()};
    for (int slot = 1; slot <= kDays; ++slot) {
        for (int line = 1; line <= kLines; ++line) {
            diary.lines_ << (IsNumber(line) ? "0\r" : "\"\"\r");
        }
        diary.SetLine(slot, Number, QByteArray::number(slot));
        diary.SetLine(slot, Stamp, StampOf(QDate(year, 1, 1).addDays(slot - 1)));
        diary.SetLine(slot, Runners, "1");
    }
    return diary;
}

void DiaryBytes::CopyDay(const DiaryBytes& from, int slot)
{
    for (int line = 1; line <= kLines; ++line) {
        SetLine(slot, line, from.Line(slot, line));
    }
}

void DiaryBytes::Visit(int slot, QDate date)
{
    SetLine(slot, Number, QByteArray::number(slot));
    SetLine(slot, Stamp, StampOf(date));
    if (Line(slot, Time) == "\"\"") {
        SetLine(slot, Time, "\"0:00:00\"");
    }
    if (Line(slot, Pace) == "\"\"") {
        SetLine(slot, Pace, "\"0:00\"");
    }
}

} // namespace zelvia::test
