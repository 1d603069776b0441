// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/SourceLines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace zelvia
{
namespace
{

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr char32_t kBroken = 0xFFFD;

void AppendUtf8(std::string& utf8, char32_t code)
{
    const auto add = [&](char32_t byte) { utf8 += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | (code >> 6));
        add(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        add(0xE0 | (code >> 12));
        add(0x80 | ((code >> 6) & 0x3F));
        add(0x80 | (code & 0x3F));
    } else {
        add(0xF0 | (code >> 18));
        add(0x80 | ((code >> 12) & 0x3F));
        add(0x80 | ((code >> 6) & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

std::string Utf8OfUtf16(std::string_view bytes, bool bigEndian)
{
    std::string utf8;
    char32_t high = 0;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        const char32_t unit =
            bigEndian ? static_cast<char32_t>(first << 8 | second) : static_cast<char32_t>(second << 8 | first);
        if (unit >= 0xD800 && unit < 0xDC00) {
            high = unit;
        } else if (unit >= 0xDC00 && unit < 0xE000) {
            AppendUtf8(utf8, high == 0 ? kBroken : 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
            high = 0;
        } else {
            AppendUtf8(utf8, unit);
        }
    }
    return utf8;
}

/// The content of a UTF-16 file as UTF-8; none for any other file. Without a mark it shows by the zeros beside the
/// quotes, digits and line ends that all of a diary's files are full of.
std::optional<std::string> FromUtf16(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE")) {
        return Utf8OfUtf16(bytes.substr(2), false);
    }
    if (bytes.starts_with("\xFE\xFF")) {
        return Utf8OfUtf16(bytes.substr(2), true);
    }
    std::array<std::size_t, 2> zeros{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        zeros[i % 2] += bytes[i] == '\0' ? 1U : 0U;
    }
    const std::size_t most = bytes.size() * 2 / 5;
    if (bytes.size() < 4 || (zeros[0] < most) == (zeros[1] < most)) {
        return std::nullopt;
    }
    return Utf8OfUtf16(bytes, bytes[0] == '\0');
}

bool HasHighBytes(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

/// True when all bytes above ASCII are sequences of UTF-8.
bool IsUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const bool high = static_cast<unsigned char>(text[i]) >= 0x80;
        const char32_t code = NextCodePoint(text, i);
        if (high && (code == kBroken || code < 0x80)) {
            return false;
        }
    }
    return true;
}

bool IsInTheSet(std::string_view utf8)
{
    for (std::size_t i = 0; i < utf8.size();) {
        if (ByteOf(NextCodePoint(utf8, i)) < 0) {
            return false;
        }
    }
    return true;
}

/// The end of the line that begins at `start`, and where the next one does. Several CR before an LF are one end: they
/// come from a file whose ends were converted twice.
struct LineEnd {
    std::size_t end;
    std::size_t next;
};

LineEnd FindEnd(std::string_view bytes, std::size_t start)
{
    std::size_t end = start;
    while (end < bytes.size() && bytes[end] != '\r' && bytes[end] != '\n') {
        ++end;
    }
    const std::size_t behind = std::min(bytes.find_first_not_of('\r', end), bytes.size());
    if (behind < bytes.size() && bytes[behind] == '\n') {
        return {end, behind + 1};
    }
    return {end, std::min(end + 1, bytes.size())};
}

SourceLines Split(std::string_view bytes)
{
    SourceLines source;
    source.lines.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
    for (std::size_t start = 0; start < bytes.size();) {
        const LineEnd found = FindEnd(bytes, start);
        SourceLine line;
        line.text = bytes.substr(start, found.end - start);
        line.number = static_cast<int>(source.lines.size()) + 1;
        const std::string_view end = bytes.substr(found.end, found.next - found.end);
        // A file cut between CR and LF has but the one.
        source.unfinished = end.empty() || (end == "\r" && found.next == bytes.size() && source.otherEnds == 0);
        if (end != "\r\n" && !source.unfinished) {
            source.firstOtherEnd = source.otherEnds == 0 ? line.number : source.firstOtherEnd;
            ++source.otherEnds;
        }
        source.lines.push_back(std::move(line));
        start = found.next;
    }
    return source;
}

/// Reads the lines that are UTF-8. A file all of whose accents are is UTF-8; a single line may be by chance.
void Decode(SourceLines& source)
{
    const auto isOther = [](const SourceLine& line) { return HasHighBytes(line.text) && !IsUtf8(line.text); };
    const bool mixed = std::any_of(source.lines.begin(), source.lines.end(), isOther);
    for (SourceLine& line : source.lines) {
        if (!HasHighBytes(line.text) || isOther(line)) {
            continue;
        }
        line.other = FromUtf8(line.text);
        line.encoding = !IsInTheSet(line.text) ? SourceLine::Encoding::Foreign
                        : mixed                ? SourceLine::Encoding::Perhaps
                                               : SourceLine::Encoding::Other;
        if (line.encoding == SourceLine::Encoding::Other) {
            line.text = std::exchange(line.other, {});
        }
    }
}

} // namespace

SourceLines SplitSource(std::string_view bytes)
{
    const std::optional<std::string> utf16 = FromUtf16(bytes);
    if (utf16) {
        bytes = *utf16;
    }
    const bool marked = bytes.starts_with(kUtf8Mark);
    bytes.remove_prefix(marked ? kUtf8Mark.size() : 0);
    const std::size_t length = bytes.find_last_not_of('\0') + 1;
    SourceLines source = Split(bytes.substr(0, length));
    source.zeros = bytes.size() - length;
    source.marked = marked || utf16;
    Decode(source);
    return source;
}

} // namespace zelvia
