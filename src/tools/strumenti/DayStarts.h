// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Text.h"
#include "tools/strumenti/SourceLines.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zelvia
{

inline constexpr int kDaysOfDiary = 366;

/// The number that is the whole line, 0 for any other one.
int SlotIn(TextView line);
/// The date that is the whole line.
std::optional<CalendarDate> StampIn(TextView line);

/// Where the days of a diary's file begin, as far as that is known.
class DayStarts
{
public:
    /// `length` is the number of lines of a day. The lines have to outlive it.
    DayStarts(const std::vector<SourceLine>& lines, std::size_t length);

    const std::vector<std::size_t>& All() const { return starts_; }

    /// True when every day begins where its place is. Whole days may be missing or too many all the same, which the
    /// number of the last one shows.
    bool AreInPlace() const;
    /// Nothing, or the number of the first day alone.
    bool IsBarelyBegun() const;
    /// The year that most days have; `fallback` when none has one.
    int YearOf(int fallback) const;
    /// The day that the start of that index is: by its number where that goes with the one before or after it, else by
    /// the one after it.
    int SlotAt(std::size_t index, int last) const;

private:
    void Find();
    void Fill();

    const std::vector<SourceLine>& lines_;
    std::size_t length_;
    std::vector<std::size_t> starts_;
};

} // namespace zelvia
