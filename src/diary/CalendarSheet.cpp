// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarSheet.h"

namespace zelvia
{

using CalendarGrid::RaceColumn;

namespace
{

void PrintFrame(Sheet& sheet)
{
    constexpr int top = 3;
    constexpr int bottom = 30;
    sheet.Box(1, top, 130, bottom);
    for (const int x : {12, 44, 65, 74, 87, 98, 109, 121}) {
        sheet.Line(x, top, x, bottom);
    }
}

void PrintHeads(Sheet& sheet)
{
    constexpr SheetCell heads[] = {{66, 4, "Distanza "},    {101, 4, "Tempo"},     {5, 5, "Data"},
                                   {26, 5, " Gara "},       {50, 5, "Località"_t}, {66, 5, "km metri"},
                                   {76, 5, "Partecipanti"}, {89, 5, "Risultato"},  {99, 5, "  hh   mm  ss"},
                                   {112, 5, "Categoria"},   {122, 5, "Risultato"}};
    for (const SheetCell& head : heads) {
        sheet.Print(head.x, head.y, head.text);
    }
}

void PrintRow(Sheet& sheet, int y, const CalendarSheetRow& row)
{
    const auto box = [&](RaceColumn column) -> const Text& { return row[CalendarGrid::IndexOf(column)]; };
    sheet.Print(DigitColumn(box(RaceColumn::Giorno), 2), y, box(RaceColumn::Giorno));
    sheet.Print(DigitColumn(box(RaceColumn::Mese), 5), y, box(RaceColumn::Mese));
    sheet.Print(8, y, box(RaceColumn::Anno));
    sheet.Print(13, y, box(RaceColumn::Gara));
    sheet.Print(45, y, box(RaceColumn::Localita));
    sheet.Print(DigitColumn(box(RaceColumn::Km), 66), y, box(RaceColumn::Km));
    if (!box(RaceColumn::Km).empty()) {
        sheet.Print(68, y, ",");
        if (box(RaceColumn::Metri).empty()) {
            sheet.Print(69, y, "0");
        }
    }
    sheet.Print(69, y, box(RaceColumn::Metri));
    sheet.Print(78, y, box(RaceColumn::Partecipanti));
    sheet.Print(90, y, box(RaceColumn::Risultato));
    sheet.Print(100, y, box(RaceColumn::Ore));
    if (!box(RaceColumn::Ore).empty()) {
        sheet.Print(102, y, ":");
    }
    sheet.Print(103, y, box(RaceColumn::Minuti));
    if (!box(RaceColumn::Minuti).empty()) {
        sheet.Print(105, y, ":");
    }
    sheet.Print(106, y, box(RaceColumn::Secondi));
    sheet.Print(112, y, box(RaceColumn::Categoria));
    sheet.Print(124, y, box(RaceColumn::RisultatoCat));
}

} // namespace

Sheet CalendarSheet(const CalendarSheetTexts& page)
{
    constexpr int dateSize = 8;
    constexpr int titleSize = 12;
    constexpr int textSize = 10;
    constexpr int firstLine = 7;
    Sheet sheet(Orientation::Landscape, {.name = "Times New Roman", .size = dateSize},
                JobName("calendario", page.date));
    sheet.Print(124, 0, page.date);
    sheet.SetFontSize(titleSize);
    PrintFrame(sheet);
    sheet.Print(60, 1, page.title);
    sheet.SetFontSize(textSize);
    PrintHeads(sheet);
    int y = firstLine;
    for (const CalendarSheetRow& row : page.rows) {
        PrintRow(sheet, y++, row);
    }
    return sheet;
}

} // namespace zelvia
