// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/StatisticSheets.h"

#include "core/Conversions.h"

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

/// A column of pairs: the name upright, the value in italics.
void PrintPair(Sheet& sheet, int x, int valueX, int y, TextView label, TextView value)
{
    sheet.SetFontItalic(false);
    sheet.Print(x, y, label);
    sheet.SetFontItalic(true);
    sheet.Print(valueX, y, value);
}

void PrintPeriod(Sheet& sheet, const SearchSheetTexts& search)
{
    constexpr int y = 4;
    constexpr int step = 3;
    const auto date = [&](int x, const std::array<Text, 3>& parts) {
        sheet.SetFontItalic(true);
        for (const Text& part : parts) {
            sheet.Print(x, y, part);
            x += step;
        }
    };
    sheet.Print(2, y, "Periodo       dal ");
    date(15, search.start);
    sheet.SetFontItalic(false);
    sheet.Print(30, y, " al ");
    date(33, search.end);
}

/// In two columns.
void PrintConditions(Sheet& sheet, const SearchSheetTexts& search)
{
    constexpr std::size_t half = (kAllCategories.size() + 1) / 2;
    constexpr int firstLine = 6;
    const auto print = [&](std::size_t i, int x, int valueX, int y) {
        PrintPair(sheet, x, valueX, y, StatisticOf(kAllCategories[i]).title, search.criteria[i]);
    };
    for (std::size_t i = 0; i < half; ++i) {
        const int y = firstLine + 2 * static_cast<int>(i);
        print(i, 2, 15, y);
        if (i + half < kAllCategories.size()) {
            print(i + half, 45, 60, y);
        }
    }
}

void PrintHeads(Sheet& sheet, int y)
{
    const SheetCell heads[] = {{2, y, "Km"}, {10, y, "Tempi"}, {20, y, "Media Km"}, {30, y, "gg mm aaaa"}};
    sheet.SetFontItalic(false);
    sheet.Print(heads);
}

void PrintRun(Sheet& sheet, int y, const Text& line)
{
    const auto columns = [&](int from, int to) { return Trim(Mid(line, from, to - from + 1)); };
    const Text average = columns(22, 27);
    sheet.SetFontItalic(true);
    sheet.Print(2, y, columns(2, 9));
    sheet.Print(10, y, columns(11, 18));
    sheet.Print(Val(Left(average, 2)) > 9 ? 21 : 22, y, average);
    sheet.Print(30, y, columns(33, 42));
}

/// Prints the runs and returns the line reached on the sheet.
int PrintRuns(Sheet& sheet, const std::vector<Text>& lines)
{
    constexpr int headLine = 20;
    constexpr int lastLine = 64;
    int y = headLine;
    PrintHeads(sheet, y);
    for (const Text& line : lines) {
        y += 2;
        PrintRun(sheet, y, line);
        if (y == lastLine) {
            sheet.NewPage();
            y = 2;
            PrintHeads(sheet, y);
        }
    }
    return y;
}

void PrintTotals(Sheet& sheet, int y, const std::array<Text, 4>& totals)
{
    constexpr int lastLineWithRoom = 50;
    constexpr int totalsSize = 11;
    if (y < lastLineWithRoom) {
        y += 3;
    } else {
        // The rule is then above the printable corner.
        sheet.NewPage();
        y = 0;
    }
    sheet.SetFontSize(totalsSize);
    sheet.Line(1, y - 1, 85, y - 1);
    sheet.SetFontItalic(false);
    sheet.Print(10, y, "Totali");
    constexpr std::array<TextView, 4> labels = {"Corse", "Km", "Tempi", "Media"};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        PrintPair(sheet, 2, 10, y + 2 + 2 * static_cast<int>(i), labels[i], totals[i]);
    }
}

} // namespace

Text StatisticSheetNumber(i16 value)
{
    return Str(value) + " ";
}

Sheet StatisticSheet(CalendarDate date, TextView title, std::span<const StatisticSheetSlot> slots)
{
    constexpr std::size_t column = 30;
    constexpr int firstLine = 5;
    Sheet sheet = DatedSheet(Orientation::Portrait, "statistica", date, 80);
    sheet.Box(10, 1, 87, 66);
    sheet.Print(35, 2, "       Statistica " + Text(title));
    sheet.SetFontSize(kSheetTextSize);
    const auto slot = [&](std::size_t index, int x, int y) {
        constexpr int countAfter = 30;
        if (index < slots.size() && !slots[index].value.empty()) {
            sheet.Print(x, y, slots[index].value);
            sheet.PrintNumber(x + countAfter, y, slots[index].count);
        }
    };
    for (std::size_t i = 0; i < column; ++i) {
        const int y = firstLine + 2 * static_cast<int>(i);
        slot(i, 13, y);
        slot(i + column, 53, y);
    }
    return sheet;
}

Sheet SearchSheet(const SearchSheetTexts& search)
{
    Sheet sheet = DatedSheet(Orientation::Portrait, "ricerca", search.date, 80);
    sheet.Box(1, 3, 85, 18);
    sheet.Print(32, 1, "   Ricerche Statistiche ");
    sheet.SetFontSize(kSheetTextSize);
    PrintPeriod(sheet, search);
    PrintConditions(sheet, search);
    PrintTotals(sheet, PrintRuns(sheet, search.lines), search.totals);
    return sheet;
}

Sheet ChartSheet(CalendarDate date, std::function<void()> copy)
{
    Sheet sheet = DatedSheet(Orientation::Landscape, "grafico", date, 125, true);
    sheet.Box(2, 1, 132, 47);
    sheet.PaintClipboard(15, 3, std::move(copy));
    return sheet;
}

} // namespace zelvia
