// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableSheet.h"

#include "core/Conversions.h"

#include <cstddef>

namespace zelvia
{

using namespace TableGrid;

namespace
{

using Row = std::array<Text, kColumns>;

bool Filled(const Text& text)
{
    return !text.empty();
}

void PrintFrame(Sheet& sheet)
{
    constexpr int top = 3;
    constexpr int bottom = 38;
    sheet.Box(1, top, 94, bottom);
    for (const int x : {5, 13, 22, 32, 56, 77}) {
        sheet.Line(x, top, x, bottom);
    }
}

void PrintHeads(Sheet& sheet)
{
    constexpr SheetCell heads[] = {
        {6, 4, "Distanza "},  {15, 4, "Tempo"},      {24, 4, "Media"},         {2, 5, "gg"},
        {6, 5, "Km metri"},   {14, 5, "hh  mm  ss"}, {23, 5, "mm  ss   mls "}, {40, 5, "Andatura"},
        {63, 5, " Terreno "}, {82, 5, "Ripetizioni"}};
    for (const SheetCell& head : heads) {
        sheet.Print(head.x, head.y, head.text);
    }
}

void PrintRun(Sheet& sheet, int y, const Row& row)
{
    sheet.Print(DigitColumn(row[Km], 6), y, row[Km]);
    if (Filled(row[Km])) {
        sheet.Print(8, y, ",");
        if (!Filled(row[Metri])) {
            sheet.Print(10, y, "0");
        }
    }
    sheet.Print(9, y, row[Metri]);

    const auto separator = [&](int x, const Text& before) {
        if (Filled(before)) {
            sheet.Print(x, y, ":");
        }
    };
    sheet.Print(DigitColumn(row[Ore], 14), y, row[Ore]);
    separator(16, row[Ore]);
    sheet.Print(17, y, row[Minuti]);
    separator(19, row[Minuti]);
    sheet.Print(20, y, row[Secondi]);

    sheet.Print(DigitColumn(row[MediaMinuti], 23), y, row[MediaMinuti]);
    separator(25, row[MediaMinuti]);
    sheet.Print(26, y, row[MediaSecondi]);
    separator(28, row[MediaSecondi]);
    sheet.Print(29, y, row[MediaMillesimi]);

    sheet.Print(33, y, row[Andatura]);
    sheet.Print(57, y, row[Fondo]);
}

void PrintRepetitions(Sheet& sheet, int y, const Row& row)
{
    const bool planned = Val(row[RipetVolte]) >= 1;
    const auto sign = [&](int x, TextView text) {
        if (planned) {
            sheet.Print(x, y, text);
        }
    };
    sheet.Print(DigitColumn(row[RipetVolte], 78), y, row[RipetVolte]);
    sign(80, "x");
    sheet.Print(81, y, row[RipetDistanza]);
    sign(86, "@");
    sheet.Print(DigitColumn(row[RipetQuante], 88), y, row[RipetQuante]);
    sign(90, ":");
    sheet.Print(91, y, row[RipetTempi]);
}

} // namespace

Sheet TableSheet(const TableSheetTexts& table)
{
    constexpr int dateSize = 8;
    constexpr int titleSize = 12;
    constexpr int textSize = 10;
    Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = dateSize}, JobName("tabella", table.date));
    sheet.Print(80, 0, table.date);
    PrintFrame(sheet);
    sheet.SetFontSize(titleSize);
    sheet.Print(26, 1, table.title);
    sheet.SetFontSize(textSize);
    PrintHeads(sheet);
    for (int row = 1; row <= kRows; ++row) {
        const int y = 6 + row;
        const Row& boxes = table.rows[static_cast<std::size_t>(row - 1)];
        sheet.PrintNumber(row < 10 ? 3 : 2, y, row);
        PrintRun(sheet, y, boxes);
        PrintRepetitions(sheet, y, boxes);
    }
    constexpr int startLine = 40;
    sheet.Print(2, startLine, " Data Inizio");
    constexpr std::array<int, 3> columns = {14, 17, 20};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        sheet.Print(columns[i], startLine, table.start[i]);
    }
    return sheet;
}

} // namespace zelvia
