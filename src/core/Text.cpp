// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text.h"

namespace zelvia
{

Text FromUtf8(std::string_view utf8)
{
    Text text;
    text.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const int byte = ByteOf(NextCodePoint(utf8, i));
        text += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return text;
}

std::string ToUtf8(TextView text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t codePoint = CodePointOf(static_cast<unsigned char>(c));
        if (codePoint < 0x80) {
            utf8 += static_cast<char>(codePoint);
        } else if (codePoint < 0x800) {
            utf8 += static_cast<char>(0xC0 | (codePoint >> 6));
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (codePoint >> 12));
            utf8 += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        }
    }
    return utf8;
}

} // namespace zelvia
