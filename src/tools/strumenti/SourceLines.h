// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "tools/strumenti/Findings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// A line of a file that may have been through another program.
struct SourceLine {
    enum class Encoding {
        Own,     ///< Windows-1252, as it should be.
        Other,   ///< Read as UTF-8 or UTF-16, as the whole file is.
        Perhaps, ///< UTF-8 by its looks, in a file that has others.
        Foreign  ///< Has a character that Windows-1252 lacks.
    };

    Text text;  ///< In Windows-1252 if it is of one of the first two kinds, else unchanged.
    Text other; ///< What it would be as UTF-8, if it is of one of the last two.
    int number = 0;
    Encoding encoding = Encoding::Own;
};

/// A file in lines, without their ends.
struct SourceLines {
    std::vector<SourceLine> lines;
    bool marked = false;     ///< It began with the mark of another encoding, or was UTF-16.
    std::size_t zeros = 0;   ///< Bytes of zero at its end, which a crash leaves.
    int otherEnds = 0;       ///< Lines with another end than CR LF.
    int firstOtherEnd = 0;   ///< The first of them.
    bool unfinished = false; ///< The last line has no end.
};

SourceLines SplitSource(std::string_view bytes);

} // namespace zelvia
