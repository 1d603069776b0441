// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sends sheets to the default printer, against an empty page sent by Qt alone.
#include "bench/Measure.h"
#include "diary/StatisticSheets.h"
#include "diary/TableSheet.h"
#include "toolkit/Application.h"
#include "toolkit/Printer.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kRounds = 20;

/// A training table with something in each of its boxes.
Sheet FullTable()
{
    TableSheetTexts table;
    table.date = CalendarDate(2026, 5, 20);
    table.title = "Tabella allenamento : Base 10 km    di   ";
    for (auto& row : table.rows) {
        row = {"12", "500", "1", "02", "30", "5", "05", "250", "Media", "Strada", "12", "1.500", "5", "05"};
    }
    return TableSheet(table);
}

/// A search that found each day of a leap year, on thirteen pages.
Sheet WholeYear()
{
    SearchSheetTexts search;
    search.date = CalendarDate(2028, 12, 31);
    search.lines.assign(366, "  7,500   0:40:00     5:07      01/03/2028 ");
    return SearchSheet(search);
}

void PrintEmptyPage()
{
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    QPainter painter(&printer);
}

void Measure(const char* name, const Sheet& sheet)
{
    const Samples samples = Alternate(
        kRounds, [&] { return MillisecondsOf([&] { PrintSheet(sheet); }); },
        [] { return MillisecondsOf(PrintEmptyPage); });
    PrintMedians(name, samples, "ms", "measured <= 200 ms");
}

} // namespace

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    Measure("Sheet of a table, to the spool", FullTable());
    Measure("Sheets of a year's search, to the spool", WholeYear());
    return 0;
}
