// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Findings.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// A file to be looked at.
struct CheckedFile {
    std::string name; ///< From the program folder on.
    std::string_view bytes;
    bool overwrites = false; ///< Whether what has to be asked is mended, too.
};

/// `year` is the diary's when its own dates don't show it.
FileReport CheckDiary(const CheckedFile& file, int year);
FileReport CheckCalendar(const CheckedFile& file);
FileReport CheckRoutes(const CheckedFile& file);
FileReport CheckTable(const CheckedFile& file);
FileReport CheckList(const CheckedFile& file);

/// What the lines of the file are called: "riga 3, gara", "percorso 12, tratto 1, km".
std::vector<std::string> CalendarFields();
std::vector<std::string> RouteFields();
using CheckFile = std::function<FileReport(const CheckedFile&)>;

/// What `check` finds in the file, and then in the file as it has mended it, until nothing is left that it would mend:
/// one damage may hide another.
FileReport CheckToTheEnd(const CheckFile& check, const CheckedFile& file);

/// The files as they are before anything is entered.
std::string BlankCalendar();
std::string BlankRoutes();

} // namespace zelvia
