// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// How something that is wrong can be mended.
enum class Remedy {
    Sure,  ///< In one right way.
    Asked, ///< In a way that the user has to want.
    ByHand ///< By the user alone.
};

/// What is wrong with a diary.
struct Finding {
    std::string file; ///< From the program folder on.
    int line = 0;     ///< From 1; 0 when it is none of the file's.
    std::string day;  ///< As 2027-03-01; empty outside of a day.
    std::string field;
    std::string_view kind; ///< quote, missing, extra, encoding, line_end, number, range, duplicate, pointer or table
    std::string text;      ///< Italian: what is there, what the program does with it, how it is repaired.
    Remedy remedy = Remedy::Sure;
};

/// What is wrong with one file, and what it becomes.
struct FileReport {
    std::vector<Finding> findings;
    /// The same bytes when nothing is to be corrected; none for a file that is missing and stays so.
    std::optional<std::string> mended;
};

} // namespace zelvia
