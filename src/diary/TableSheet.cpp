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

using Riga = std::array<Text, kColumns>;

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

void PrintRun(Sheet& sheet, int y, const Riga& riga)
{
    sheet.Print(DigitColumn(riga[Km], 6), y, riga[Km]);
    if (Filled(riga[Km])) {
        sheet.Print(8, y, ",");
        if (!Filled(riga[Metri])) {
            sheet.Print(10, y, "0");
        }
    }
    sheet.Print(9, y, riga[Metri]);

    const auto separator = [&](int x, const Text& before) {
        if (Filled(before)) {
            sheet.Print(x, y, ":");
        }
    };
    sheet.Print(DigitColumn(riga[Ore], 14), y, riga[Ore]);
    separator(16, riga[Ore]);
    sheet.Print(17, y, riga[Minuti]);
    separator(19, riga[Minuti]);
    sheet.Print(20, y, riga[Secondi]);

    sheet.Print(DigitColumn(riga[MediaMinuti], 23), y, riga[MediaMinuti]);
    separator(25, riga[MediaMinuti]);
    sheet.Print(26, y, riga[MediaSecondi]);
    separator(28, riga[MediaSecondi]);
    sheet.Print(29, y, riga[MediaMillesimi]);

    sheet.Print(33, y, riga[Andatura]);
    sheet.Print(57, y, riga[Fondo]);
}

void PrintRepetitions(Sheet& sheet, int y, const Riga& riga)
{
    const bool planned = Val(riga[RipetVolte]) >= 1;
    const auto sign = [&](int x, TextView text) {
        if (planned) {
            sheet.Print(x, y, text);
        }
    };
    sheet.Print(DigitColumn(riga[RipetVolte], 78), y, riga[RipetVolte]);
    sign(80, "x");
    sheet.Print(81, y, riga[RipetDistanza]);
    sign(86, "@");
    sheet.Print(DigitColumn(riga[RipetQuante], 88), y, riga[RipetQuante]);
    sign(90, ":");
    sheet.Print(91, y, riga[RipetTempi]);
}

} // namespace

Sheet TableSheet(const TableSheetTexts& tabella)
{
    constexpr int dateSize = 8;
    constexpr int titleSize = 12;
    constexpr int textSize = 10;
    Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = dateSize}, JobName("tabella", tabella.data));
    sheet.Print(80, 0, tabella.data);
    PrintFrame(sheet);
    sheet.SetFontSize(titleSize);
    sheet.Print(26, 1, tabella.titolo);
    sheet.SetFontSize(textSize);
    PrintHeads(sheet);
    for (int riga = 1; riga <= kRows; ++riga) {
        const int y = 6 + riga;
        const Riga& boxes = tabella.righe[static_cast<std::size_t>(riga - 1)];
        sheet.PrintNumber(riga < 10 ? 3 : 2, y, riga);
        PrintRun(sheet, y, boxes);
        PrintRepetitions(sheet, y, boxes);
    }
    constexpr int startLine = 40;
    sheet.Print(2, startLine, " Data Inizio");
    constexpr std::array<int, 3> columns = {14, 17, 20};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        sheet.Print(columns[i], startLine, tabella.dataInizio[i]);
    }
    return sheet;
}

} // namespace zelvia
