// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zelvia
{

/// A string of single-byte characters in Windows-1252, as the diary's files hold it.
using Text = std::string;
using TextView = std::string_view;

/// Unicode code points of the bytes 0x80..0x9F of Windows-1252 (Microsoft's code page table). The five unassigned
/// bytes 81, 8D, 8F, 90 and 9D map to the control character of the same number, so that they survive a round trip.
inline constexpr std::array<char32_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Unicode code point of a Windows-1252 byte.
constexpr char32_t CodePointOf(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0x9F ? kWindows1252High[static_cast<std::size_t>(byte - 0x80)] : byte;
}

/// The Windows-1252 byte of a code point, or -1 when the set has none.
constexpr int ByteOf(char32_t codePoint)
{
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<int>(codePoint);
    }
    for (std::size_t i = 0; i < kWindows1252High.size(); ++i) {
        if (kWindows1252High[i] == codePoint) {
            return static_cast<int>(i + 0x80);
        }
    }
    return -1;
}

/// Decodes the UTF-8 sequence at `position` and moves past it; a malformed byte comes out as U+FFFD.
constexpr char32_t NextCodePoint(std::string_view utf8, std::size_t& position)
{
    const auto lead = static_cast<unsigned char>(utf8[position++]);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t follow = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (follow == 0 || position + follow > utf8.size()) {
        return 0xFFFD;
    }
    char32_t codePoint = lead & (0x3Fu >> follow);
    for (std::size_t i = 0; i < follow; ++i) {
        const auto next = static_cast<unsigned char>(utf8[position]);
        if ((next & 0xC0) != 0x80) {
            return 0xFFFD;
        }
        codePoint = (codePoint << 6) | (next & 0x3F);
        ++position;
    }
    return codePoint;
}

/// A source literal converted to Windows-1252 while compiling; a character outside the set does not compile.
template <std::size_t N>
struct TextLiteral {
    std::array<char, N> bytes{};
    std::size_t size = 0;

    consteval TextLiteral(const char (&utf8)[N]) // NOLINT(google-explicit-constructor): the literal operator needs it
    {
        const std::string_view source(utf8, N - 1);
        for (std::size_t i = 0; i < source.size();) {
            const int byte = ByteOf(NextCodePoint(source, i));
            if (byte < 0) {
                throw "a character of this literal is not in Windows-1252";
            }
            bytes[size++] = static_cast<char>(byte);
        }
    }
};

/// "Località"_t: a text of the system written in the source.
template <TextLiteral literal>
constexpr TextView operator""_t()
{
    return {literal.bytes.data(), literal.size};
}

/// UTF-8 to Windows-1252; a character outside the set becomes "?".
Text FromUtf8(std::string_view utf8);

/// Windows-1252 to UTF-8.
std::string ToUtf8(TextView text);

} // namespace zelvia
