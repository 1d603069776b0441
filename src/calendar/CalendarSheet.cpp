// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/CalendarSheet.h"

namespace zelvia
{
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

void PrintRow(Sheet& sheet, int y, const CalendarSheetRow& riga)
{
    sheet.Print(DigitColumn(riga.giorno, 2), y, riga.giorno);
    sheet.Print(DigitColumn(riga.mese, 5), y, riga.mese);
    sheet.Print(8, y, riga.anno);
    sheet.Print(13, y, riga.gara);
    sheet.Print(45, y, riga.localita);
    sheet.Print(DigitColumn(riga.km, 66), y, riga.km);
    if (!riga.km.empty()) {
        sheet.Print(68, y, ",");
        if (riga.metri.empty()) {
            sheet.Print(69, y, "0");
        }
    }
    sheet.Print(69, y, riga.metri);
    sheet.Print(78, y, riga.partecipanti);
    sheet.Print(90, y, riga.risultato);
    sheet.Print(100, y, riga.ore);
    if (!riga.ore.empty()) {
        sheet.Print(102, y, ":");
    }
    sheet.Print(103, y, riga.minuti);
    if (!riga.minuti.empty()) {
        sheet.Print(105, y, ":");
    }
    sheet.Print(106, y, riga.secondi);
    sheet.Print(112, y, riga.categoria);
    sheet.Print(124, y, riga.risultatoCat);
}

} // namespace

Sheet CalendarSheet(const CalendarSheetTexts& pagina)
{
    constexpr int dateSize = 8;
    constexpr int titleSize = 12;
    constexpr int textSize = 10;
    constexpr int firstLine = 7;
    Sheet sheet(Orientation::Landscape, {.name = "Times New Roman", .size = dateSize});
    sheet.Print(124, 0, pagina.data);
    sheet.SetFontSize(titleSize);
    PrintFrame(sheet);
    sheet.Print(60, 1, pagina.titolo);
    sheet.SetFontSize(textSize);
    PrintHeads(sheet);
    int y = firstLine;
    for (const CalendarSheetRow& riga : pagina.righe) {
        PrintRow(sheet, y++, riga);
    }
    return sheet;
}

} // namespace zelvia
