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

/// A sign that is printed only after a text.
TextView After(const Text& before, TextView sign)
{
    return before.empty() ? TextView() : sign;
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
    sheet.Print(heads);
}

void PrintRun(Sheet& sheet, int y, const Row& row)
{
    sheet.Print(DigitColumn(row[Km], 6), y, row[Km]);
    sheet.Print(8, y, After(row[Km], ","));
    if (row[Metri].empty()) {
        sheet.Print(10, y, After(row[Km], "0"));
    }
    sheet.Print(9, y, row[Metri]);

    sheet.Print(DigitColumn(row[Ore], 14), y, row[Ore]);
    sheet.Print(16, y, After(row[Ore], ":"));
    sheet.Print(17, y, row[Minuti]);
    sheet.Print(19, y, After(row[Minuti], ":"));
    sheet.Print(20, y, row[Secondi]);

    sheet.Print(DigitColumn(row[MediaMinuti], 23), y, row[MediaMinuti]);
    sheet.Print(25, y, After(row[MediaMinuti], ":"));
    sheet.Print(26, y, row[MediaSecondi]);
    sheet.Print(28, y, After(row[MediaSecondi], ":"));
    sheet.Print(29, y, row[MediaMillesimi]);

    sheet.Print(33, y, row[Andatura]);
    sheet.Print(57, y, row[Fondo]);
}

void PrintRepetitions(Sheet& sheet, int y, const Row& row)
{
    const bool planned = Val(row[RipetVolte]) >= 1;
    const auto sign = [&](int x, TextView text) { sheet.Print(x, y, planned ? text : TextView()); };
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
    Sheet sheet = DatedSheet(Orientation::Portrait, "tabella", table.date, 80);
    PrintFrame(sheet);
    sheet.Print(26, 1, table.title);
    sheet.SetFontSize(kSheetTextSize);
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
