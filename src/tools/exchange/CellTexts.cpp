// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/CellTexts.h"

#include <charconv>
#include <vector>

namespace zelvia
{
namespace
{

std::string TwoDigits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// What is between the colons, two or three numbers.
std::vector<int> ClockParts(std::string_view text)
{
    std::vector<int> parts;
    for (;;) {
        const std::size_t colon = text.find(':');
        const auto part = WholeNumber(text.substr(0, colon));
        if (!part || *part < 0 || (!parts.empty() && *part >= kMinute)) {
            return {};
        }
        parts.push_back(*part);
        if (colon == std::string_view::npos) {
            return parts.size() == 2 || parts.size() == 3 ? parts : std::vector<int>();
        }
        text.remove_prefix(colon + 1);
    }
}

} // namespace

std::string_view Stripped(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \t");
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::optional<int> WholeNumber(std::string_view text)
{
    int number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = failed == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

std::string ClockText(int seconds)
{
    return std::to_string(seconds / kMinute / kMinute) + ":" + TwoDigits(seconds / kMinute % kMinute) + ":" +
           TwoDigits(seconds % kMinute);
}

std::optional<int> SecondsOf(std::string_view text, bool ofTheDay)
{
    std::vector<int> parts = ClockParts(Stripped(text));
    if (parts.empty()) {
        return std::nullopt;
    }
    if (parts.size() == 2) {
        parts.insert(ofTheDay ? parts.end() : parts.begin(), 0);
    }
    constexpr int mostHours = 24;
    return parts[0] > mostHours ? std::nullopt : std::optional((parts[0] * kMinute + parts[1]) * kMinute + parts[2]);
}

} // namespace zelvia
