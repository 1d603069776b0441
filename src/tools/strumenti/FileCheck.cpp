// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/FileCheck.h"

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

/// The same damage, whatever its line is now.
bool IsSame(const Finding& one, const Finding& other)
{
    return one.kind == other.kind && one.day == other.day && one.field == other.field && one.text == other.text;
}

} // namespace

FileReport CheckToTheEnd(const CheckFile& check, const CheckedFile& file)
{
    // Each pass mends what the one before has brought to light; none has been seen to need more than three.
    constexpr int passes = 8;
    FileReport report = check(file);
    for (int pass = 1; pass < passes && report.mended && *report.mended != file.bytes; ++pass) {
        FileReport next = check({file.name, *report.mended, file.overwrites});
        for (Finding& finding : next.findings) {
            const bool known = std::any_of(report.findings.begin(), report.findings.end(),
                                           [&](const Finding& earlier) { return IsSame(earlier, finding); });
            if (!known) {
                report.findings.push_back(std::move(finding));
            }
        }
        const bool settled = next.mended == report.mended;
        report.mended = std::move(next.mended);
        if (settled) {
            break;
        }
    }
    return report;
}

} // namespace zelvia
