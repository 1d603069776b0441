// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/Table.h"

#include "core/Tr.h"

#include <algorithm>
#include <cstddef>

namespace zelvia
{
namespace
{

/// The number of its characters.
std::size_t Width(std::string_view utf8)
{
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// The text without what would end its cell.
std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

void PrintCell(std::ostream& line, const std::string& text, std::size_t width, const Table::Column& column, bool last)
{
    const std::string blanks(width - Width(text), ' ');
    if (column.right) {
        line << blanks << text;
    } else {
        line << text << (last ? "" : blanks);
    }
    line << (last ? "\n" : "  ");
}

} // namespace

void PrintTsv(std::ostream& out, const Table& table)
{
    const std::size_t count = table.columns.size();
    for (std::size_t i = 0; i < count; ++i) {
        out << table.columns[i].name << (i + 1 < count ? "\t" : "\n");
    }
    for (const auto& row : table.rows) {
        for (std::size_t i = 0; i < count; ++i) {
            out << OneLine(row[i]) << (i + 1 < count ? "\t" : "\n");
        }
    }
}

void PrintColumns(std::ostream& out, const Table& table)
{
    if (table.rows.empty()) {
        return;
    }
    std::vector<std::vector<std::string>> rows(1);
    for (const Table::Column& column : table.columns) {
        rows.front().push_back(Tools::Tr(column.heading));
    }
    rows.insert(rows.end(), table.rows.begin(), table.rows.end());
    std::vector<std::size_t> widths(table.columns.size());
    for (auto& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            row[i] = OneLine(std::move(row[i]));
            widths[i] = std::max(widths[i], Width(row[i]));
        }
    }
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            PrintCell(out, row[i], widths[i], table.columns[i], i + 1 == widths.size());
        }
    }
}

} // namespace zelvia
