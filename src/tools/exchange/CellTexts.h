// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvia
{

inline constexpr int kMinute = 60; ///< In seconds.

/// The text without blanks and tabs at its ends.
std::string_view Stripped(std::string_view text);

/// The number that the whole text is, none for any other text.
std::optional<int> WholeNumber(std::string_view text);

/// Seconds as h:mm:ss.
std::string ClockText(int seconds);

/// The seconds of a time: with two parts hours and minutes of the day, or minutes and seconds of a duration. None for a
/// text that is no time, or more than 24 hours and what is below one.
std::optional<int> SecondsOf(std::string_view text, bool ofTheDay);

} // namespace zelvia
