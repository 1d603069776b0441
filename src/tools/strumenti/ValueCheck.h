// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/Fields.h"
#include "diary/FileForms.h"
#include "tools/strumenti/Findings.h"
#include "tools/strumenti/SourceLines.h"

#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// What a line of a file should be.
struct LinePattern {
    ValueKind kind = ValueKind::Quoted;
    std::string field; ///< UTF-8
    std::string day;   ///< ISO
    NumberRange range; ///< All numbers that fit when both ends are 0.
    Text blank;        ///< The line when nothing was entered.
};

/// Gathers what is wrong with one file.
class Report
{
public:
    Report(std::string file, bool overwrites) : file_(std::move(file)), overwrites_(overwrites) {}

    /// True when it is to be corrected.
    bool Add(std::string_view kind, int line, const LinePattern& pattern, std::string text, Remedy remedy);
    bool Applies(Remedy remedy) const { return remedy == Remedy::Sure || (remedy == Remedy::Asked && overwrites_); }

    /// What concerns the file as a whole.
    void CheckSource(const SourceLines& source);
    /// A line that should be as `pattern` has it. What can be mended is.
    void CheckValue(SourceLine& line, const LinePattern& pattern);

    std::vector<Finding> findings;

private:
    void CheckEncoding(SourceLine& line, const LinePattern& pattern);
    void CheckText(SourceLine& line, const LinePattern& pattern);
    void CheckNumber(SourceLine& line, const LinePattern& pattern);
    void CheckDate(SourceLine& line, const LinePattern& pattern);

    std::string file_;
    bool overwrites_;
};

/// True when the line looks like a value of that kind, right or wrong.
bool LooksLike(ValueKind kind, TextView line);

/// The lines as a file has them.
std::string Joined(const std::vector<SourceLine>& lines);

} // namespace zelvia
