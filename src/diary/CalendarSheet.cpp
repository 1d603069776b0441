// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarSheet.h"

namespace zelvia
{

using namespace CalendarGrid;

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
    sheet.Print(heads);
}

void PrintRow(Sheet& sheet, int y, const CalendarSheetRow& row)
{
    sheet.Print(DigitColumn(row[Giorno], 2), y, row[Giorno]);
    sheet.Print(DigitColumn(row[Mese], 5), y, row[Mese]);
    sheet.Print(8, y, row[Anno]);
    sheet.Print(13, y, row[Gara]);
    sheet.Print(45, y, row[Localita]);
    sheet.Print(DigitColumn(row[Km], 66), y, row[Km]);
    if (!row[Km].empty()) {
        sheet.Print(68, y, ",");
    }
    sheet.Print(69, y, !row[Km].empty() && row[Metri].empty() ? "0" : row[Metri]);
    sheet.Print(78, y, row[Partecipanti]);
    sheet.Print(90, y, row[Risultato]);
    sheet.Print(100, y, row[Ore]);
    sheet.Print(102, y, row[Ore].empty() ? "" : ":");
    sheet.Print(103, y, row[Minuti]);
    sheet.Print(105, y, row[Minuti].empty() ? "" : ":");
    sheet.Print(106, y, row[Secondi]);
    sheet.Print(112, y, row[Categoria]);
    sheet.Print(124, y, row[RisultatoCat]);
}

} // namespace

Sheet CalendarSheet(const CalendarSheetTexts& page)
{
    constexpr int firstLine = 7;
    Sheet sheet = DatedSheet(Orientation::Landscape, "calendario", page.date, 124);
    PrintFrame(sheet);
    sheet.Print(60, 1, page.title);
    sheet.SetFontSize(kSheetTextSize);
    PrintHeads(sheet);
    int y = firstLine;
    for (const CalendarSheetRow& row : page.rows) {
        PrintRow(sheet, y++, row);
    }
    return sheet;
}

} // namespace zelvia
