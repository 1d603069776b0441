// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// What an action lists.
struct Table {
    struct Column {
        std::string_view name;    ///< English, for programs.
        const char* heading = ""; ///< Italian, for the runner; printed in the user's language.
        bool right = false;       ///< Numbers are right-aligned.
    };

    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows; ///< UTF-8, a cell for each column.
};

/// Tab-separated lines with a head; a cell never holds a tab or a line end.
void PrintTsv(std::ostream& out, const Table& table);

/// The same in columns with a heading; nothing for a table without rows.
void PrintColumns(std::ostream& out, const Table& table);

} // namespace zelvia
