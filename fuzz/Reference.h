// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace zelvia::fuzz
{

/// The number at the start of a text as the C library reads it, once the blanks are gone: a sign, digits, one point.
/// Infinite when it is beyond a double.
double PlainVal(Text text);

/// The same rounded to a short, ties to even; none when it is out of range.
std::optional<int> PlainShort(const Text& text);

/// Reads values as ValueReader does, in the simplest way: one character after the other, all bytes in memory.
class Reference
{
public:
    explicit Reference(Text bytes) : bytes_(std::move(bytes)) {}

    bool AtEnd() const { return at_ == bytes_.size(); }

    /// The next text; none when the bytes end before it does.
    std::optional<Text> NextText();

    /// The next value to become a number or a date; none when the bytes have ended or it is in quotes.
    /// `ended` tells the two apart.
    std::optional<Text> NextBare(bool& ended);

    /// Takes the comma or line end after a valid bare value.
    void SkipSeparator();

private:
    char Here() const { return bytes_[at_]; }
    bool At(TextView set) const { return !AtEnd() && set.find(Here()) != TextView::npos; }
    void SkipBlanks();
    Text Bare();

    Text bytes_;
    std::size_t at_ = 0;
};

} // namespace zelvia::fuzz
