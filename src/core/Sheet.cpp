// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Sheet.h"

#include "core/Conversions.h"

namespace zelvia
{

Text JobName(TextView sheet, CalendarDate date)
{
    return "Zelvia, " + Text(sheet) + ", " + PlainText(date);
}

void Sheet::Print(int x, int y, TextView text)
{
    if (!text.empty()) {
        operations_.emplace_back(SheetText{x, y, Text(text), font_});
    }
}

void Sheet::Print(int x, int y, CalendarDate date)
{
    Print(x, y, PlainText(date));
}

void Sheet::Print(std::span<const SheetCell> cells)
{
    for (const SheetCell& cell : cells) {
        Print(cell.x, cell.y, cell.text);
    }
}

void Sheet::PrintNumber(int x, int y, i32 number)
{
    Print(x, y, Str(number) + " ");
}

Sheet DatedSheet(Orientation orientation, TextView name, CalendarDate date, int x, bool bold)
{
    constexpr int dateSize = 8;
    constexpr int titleSize = 12;
    Sheet sheet(orientation, {.name = "Times New Roman", .size = dateSize, .bold = bold}, JobName(name, date));
    sheet.Print(x, 0, date);
    sheet.SetFontSize(titleSize);
    return sheet;
}

int DigitColumn(TextView text, int twoDigits)
{
    constexpr double firstOfTwo = 10;
    return Val(text) >= firstOfTwo ? twoDigits : twoDigits + 1;
}

} // namespace zelvia
