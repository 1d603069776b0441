// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Reference.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace zelvia::fuzz
{

double PlainVal(Text text)
{
    std::erase(text, ' ');
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    bool point = false;
    while (at < text.size() && ((text[at] >= '0' && text[at] <= '9') || (text[at] == '.' && !point))) {
        point = point || text[at] == '.';
        ++at;
    }
    return std::strtod(text.substr(0, at).c_str(), nullptr);
}

std::optional<int> PlainShort(const Text& text)
{
    const double number = std::nearbyint(PlainVal(text));
    if (number < INT16_MIN || number > INT16_MAX) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

void Reference::SkipBlanks()
{
    while (At(" \t")) {
        ++at_;
    }
}

void Reference::SkipSeparator()
{
    if (At("\r")) {
        ++at_;
        at_ += At("\n") ? 1 : 0;
    } else if (At(",\n")) {
        ++at_;
    }
}

Text Reference::Bare()
{
    Text value;
    while (!AtEnd() && !At(",\r\n")) {
        value += bytes_[at_++];
    }
    while (value.ends_with(' ') || value.ends_with('\t')) {
        value.pop_back();
    }
    return value;
}

std::optional<Text> Reference::NextText()
{
    SkipBlanks();
    if (AtEnd()) {
        return std::nullopt;
    }
    Text value;
    if (!At("\"")) {
        value = Bare();
        SkipSeparator();
        return value;
    }
    for (++at_; !At("\""); ++at_) {
        if (AtEnd()) {
            return std::nullopt;
        }
        value += Here();
    }
    ++at_;
    SkipBlanks();
    SkipSeparator();
    return value;
}

std::optional<Text> Reference::NextBare(bool& ended)
{
    SkipBlanks();
    ended = AtEnd();
    if (ended || At("\"")) {
        return std::nullopt;
    }
    return Bare();
}

} // namespace zelvia::fuzz
