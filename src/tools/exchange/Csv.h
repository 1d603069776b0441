// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// A line of a CSV file after RFC 4180, with its CR LF. A cell with a comma, a quote or a line end is quoted.
std::string CsvLine(const std::vector<std::string>& cells);

/// Reads a CSV file in UTF-8: commas, or semicolons or tabs when the first line has more of these; quoted cells; any
/// line end, also a missing last one. Empty lines are left out. Raises FileFailure for a quote that is never closed
/// and for bytes that are no text.
std::vector<std::vector<std::string>> ReadCsv(std::string_view bytes);

} // namespace zelvia
