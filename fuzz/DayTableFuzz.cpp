// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of days that come in.
#include "Harness.h"
#include "tools/copies/SafeFiles.h"
#include "tools/exchange/Csv.h"
#include "tools/exchange/IncomingDay.h"

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

/// A cell, empty for one of blanks alone: that is not taken.
std::string Meant(const std::string& cell)
{
    return cell.find_first_not_of(" \t\n") == std::string::npos ? std::string() : cell;
}

/// A row that is taken makes a day that goes out and comes in again as it is.
void RequireStable(const std::vector<std::optional<DayColumn>>& columns, const std::vector<std::string>& row)
{
    RecordGiorno day;
    IncomingDay incoming;
    try {
        incoming = IncomingOf(columns, row);
        PutInto(day, incoming);
    } catch (const FileFailure&) {
        return;
    }
    day.Data = incoming.date;
    std::vector<std::optional<DayColumn>> all;
    std::vector<std::string> cells;
    for (const DayColumnRow& column : DayColumns()) {
        all.emplace_back(column.column);
        cells.push_back(CellOf(day, column.column));
    }
    const std::vector<std::string> read = ReadCsv(CsvLine({"date", "km"}) + CsvLine(cells)).at(1);
    Require(read == cells, "a row is read as it was written");
    RecordGiorno back;
    back.Data = day.Data;
    PutInto(back, IncomingOf(all, read));
    for (const DayColumnRow& column : DayColumns()) {
        Require(Meant(CellOf(back, column.column)) == Meant(CellOf(day, column.column)), "a day comes back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::vector<std::string>> rows;
    try {
        rows = ReadCsv(InputText(data, size));
    } catch (const FileFailure&) {
        return 0;
    }
    if (rows.empty()) {
        return 0;
    }
    std::vector<std::optional<DayColumn>> columns;
    for (const std::string& head : rows.front()) {
        columns.push_back(ColumnOf(head));
    }
    for (std::size_t i = 1; i < rows.size(); ++i) {
        RequireStable(columns, rows[i]);
    }
    return 0;
}
