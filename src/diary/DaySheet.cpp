// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DaySheet.h"

#include <span>

namespace zelvia
{
namespace
{

constexpr int kLineStep = 2;
constexpr int kFirstLine = 4;
constexpr int kLeftLabels = 4;
constexpr int kRightLabels = 48;
constexpr int kRightValues = 62;

constexpr std::array<TextView, 6> kTableLabels = {"Km", "Tempo", "Media Km", "Andatura", "Terreno", "Ripetizioni"};
constexpr std::array<TextView, 8> kRaceLabels = {"GARA :  ",  "Località "_t, "Partecipanti", "Tempo Impiegato",
                                                 "Lunghezza", "Risultato",   "Categoria",    "Risultato"};
constexpr std::array<TextView, 4> kCounterLabels = {"Giorno dell'anno", "Allenamenti", "Km percorsi", "Gare"};

/// Texts, one below the other.
void PrintColumn(Sheet& sheet, int x, int firstLine, const auto& texts)
{
    int y = firstLine;
    for (const auto& text : texts) {
        sheet.Print(x, y, text);
        y += kLineStep;
    }
}

void PrintFields(Sheet& sheet, const DaySheetTexts& day)
{
    constexpr int markBefore = 2;
    ForEachPrinted([&](const auto& field) {
        if (!field.place.caption.empty()) {
            sheet.Print(kLeftLabels, field.place.line, field.place.caption);
        }
    });
    sheet.SetFontItalic(true);
    const auto* value = day.values.begin();
    ForEachPrinted([&](const auto& field) {
        const SheetPlace& place = field.place;
        if (!place.mark.empty()) {
            sheet.Print(place.column - markBefore, place.line, place.mark);
        }
        sheet.Print(place.column, place.line, *value++);
    });
}

void PrintTable(Sheet& sheet, const DaySheetTexts& day)
{
    sheet.Print(kRightLabels, kFirstLine, "ALLENAMENTO :  " + day.tableName);
    PrintColumn(sheet, kRightLabels, kFirstLine + kLineStep, kTableLabels);
    sheet.SetFontItalic(true);
    PrintColumn(sheet, kRightValues, kFirstLine + kLineStep, day.plan);
}

void PrintRace(Sheet& sheet, const DaySheetTexts& day)
{
    PrintColumn(sheet, kRightLabels, kFirstLine, kRaceLabels);
    sheet.Print(kRightValues, kFirstLine, day.race.front());
    sheet.SetFontItalic(true);
    PrintColumn(sheet, kRightValues, kFirstLine + kLineStep, std::span(day.race).subspan(1));
}

void PrintNotes(Sheet& sheet, const DaySheetTexts& day)
{
    constexpr int firstLine = 20;
    constexpr int lines = 56;
    sheet.SetFontItalic(true);
    sheet.Print(kRightLabels, firstLine, "Note");
    sheet.SetFontName("Courier New");
    sheet.SetFontSize(10);
    PrintColumn(sheet, lines, firstLine, day.note);
}

} // namespace

Sheet DaySheet(const DaySheetTexts& day)
{
    constexpr int headSize = 12;
    constexpr int textSize = 11;
    constexpr int footLine = 40;
    constexpr int footValues = 21;
    const SheetFont head{.name = "Times New Roman", .size = headSize};
    Sheet sheet(Orientation::Portrait, head, JobName("giorno", day.date));
    sheet.Box(3, 1, 94, 48);
    sheet.Print(40, 2, day.date);

    sheet.SetFontSize(textSize);
    PrintFields(sheet, day);

    sheet.SetFontItalic(false);
    day.showsRace ? PrintRace(sheet, day) : PrintTable(sheet, day);
    PrintNotes(sheet, day);

    sheet.SetFontName(head.name);
    sheet.SetFontSize(textSize);
    sheet.SetFontItalic(false);
    PrintColumn(sheet, kLeftLabels, footLine, kCounterLabels);
    PrintColumn(sheet, footValues, footLine, day.counters);
    return sheet;
}

} // namespace zelvia
