// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/DayStarts.h"

#include "core/RunTimeError.h"
#include "tools/strumenti/ValueCheck.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace zelvia
{

int SlotIn(TextView line)
{
    int number = 0;
    const char* const end = line.data() + line.size();
    return std::from_chars(line.data(), end, number).ptr == end && !line.empty() ? number : 0;
}

std::optional<CalendarDate> StampIn(TextView line)
{
    if (line.size() < 2 || line.front() != '#' || line.back() != '#') {
        return std::nullopt;
    }
    return TrapValueWith(
        std::optional<CalendarDate>(), [&] { return std::optional(IsoDate(line.substr(1, line.size() - 2))); },
        [](const ErroreRunTime&) {});
}

DayStarts::DayStarts(const std::vector<SourceLine>& lines, std::size_t length) : lines_(lines), length_(length)
{
    Find();
    Fill();
}

/// Where a day begins: a number and a date, which nothing else in a day is.
void DayStarts::Find()
{
    // Longer than a blank text of which one quote was damaged.
    constexpr std::size_t shortest = sizeof "#2027";
    for (std::size_t i = 0; i + 1 < lines_.size(); ++i) {
        if (LooksLike(ValueKind::Short, lines_[i].text) && LooksLike(ValueKind::Stamp, lines_[i + 1].text) &&
            lines_[i + 1].text.size() >= shortest) {
            starts_.push_back(i);
        }
    }
}

/// Days whose number or date is unknown are placed between others by their length.
void DayStarts::Fill()
{
    std::vector<std::size_t> all;
    std::size_t next = 0;
    for (const std::size_t start : starts_) {
        for (; next < start && (start - next) % length_ == 0; next += length_) {
            all.push_back(next);
        }
        all.push_back(start);
        next = start + length_;
    }
    for (; !all.empty() && all.size() < kDaysOfDiary && next + length_ <= lines_.size(); next += length_) {
        all.push_back(next);
    }
    starts_ = std::move(all);
}

bool DayStarts::AreInPlace() const
{
    return std::all_of(starts_.begin(), starts_.end(), [&](std::size_t at) { return at % length_ == 0; }) &&
           (starts_.empty() || lines_.size() == length_ * kDaysOfDiary ||
            static_cast<std::size_t>(SlotIn(lines_[starts_.back()].text)) == starts_.back() / length_ + 1);
}

bool DayStarts::IsBarelyBegun() const
{
    return lines_.empty() || (lines_.size() == 1 && lines_.front().text == "1");
}

int DayStarts::YearOf(int fallback) const
{
    std::map<int, int> counts;
    for (const std::size_t start : starts_) {
        if (const auto stamp = StampIn(lines_[start + 1].text)) {
            ++counts[stamp->Year().value()];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? fallback : most->first;
}

int DayStarts::SlotAt(std::size_t index, int last) const
{
    const auto number = [&](std::size_t at) { return at < starts_.size() ? SlotIn(lines_[starts_[at]].text) : 0; };
    const int own = number(index);
    const int byNext = number(index + 1) - 1;
    if (own == last + 1 || (own > last && own == byNext)) {
        return own;
    }
    if (byNext > last && byNext <= kDaysOfDiary) {
        return byNext;
    }
    return own >= 1 && own <= kDaysOfDiary ? own : last + 1;
}

} // namespace zelvia
