// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zelvia
{
namespace
{

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// True for a number of one or more, however many digits it has.
bool HasWholePart(TextView digits)
{
    const TextView whole = digits.substr(0, digits.find('.'));
    return whole.find_first_of("123456789") != TextView::npos;
}

/// Digits, at most one ".", a sign in front: what from_chars reads without its exponents and special names. A number
/// too small for the type is 0.
template <typename Float>
Float ParsePlain(TextView digits)
{
    if (digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    Float value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range && HasWholePart(digits)) {
        throw ErroreRunTime(Errore::Overflow);
    }
    return value;
}

/// The text of an Italian number with its dots dropped and its comma a point, for ParsePlain.
Text LocaleDigits(TextView text)
{
    const Text trimmed = Trim(text);
    Text digits;
    bool decimals = false;
    bool anyDigit = false;
    for (std::size_t i = 0; i < trimmed.size(); ++i) {
        const char c = trimmed[i];
        if (IsDigit(c)) {
            digits += c;
            anyDigit = true;
        } else if (c == ',' && !decimals) {
            digits += '.';
            decimals = true;
        } else if ((c == '-' || c == '+') && i == 0) {
            digits += c;
        } else if (c != '.' || decimals || !anyDigit) {
            throw ErroreRunTime(Errore::TipoNonCorrispondente);
        }
    }
    if (!anyDigit) {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
    return digits;
}

/// Shortest decimal of at most `significant` digits, "." as point; a zero has no sign.
Text Decimal(double number, int significant)
{
    number += 0.0; // Makes the negative zero a plain one.
    std::array<char, 512> buffer{};
    const auto general = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       std::chars_format::scientific, significant - 1);
    double rounded = 0;
    std::from_chars(buffer.data(), general.ptr, rounded);
    const auto fixed = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded, std::chars_format::fixed);
    return {buffer.data(), fixed.ptr};
}

constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;
constexpr int kSingleDigits = 7;

Text WithComma(Text digits)
{
    std::replace(digits.begin(), digits.end(), '.', ',');
    return digits;
}

bool IsPlaceholder(char c)
{
    return c == '0' || c == '#';
}

struct NumberPattern {
    Text before;
    Text after;
    std::size_t minInteger = 0;
    std::size_t minFraction = 0;
    std::size_t maxFraction = 0;
    bool thousands = false;
};

NumberPattern ParsePattern(TextView pattern)
{
    NumberPattern parsed;
    bool inFraction = false;
    bool seen = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (IsPlaceholder(c)) {
            seen = true;
            if (inFraction) {
                ++parsed.maxFraction;
                parsed.minFraction = c == '0' ? parsed.maxFraction : parsed.minFraction;
            } else if (c == '0' || parsed.minInteger > 0) {
                ++parsed.minInteger;
            }
        } else if (c == '.' && !inFraction) {
            inFraction = true;
        } else if (c == ',' && seen && i + 1 < pattern.size() && IsPlaceholder(pattern[i + 1])) {
            parsed.thousands = true;
        } else {
            (seen ? parsed.after : parsed.before) += c;
        }
    }
    return parsed;
}

/// Adds one to a string of decimal digits with at most one point.
void IncrementDigits(Text& digits)
{
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it == '.') {
            continue;
        }
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(digits.begin(), '1');
}

/// A decimal without sign, rounded half away from zero to `places` decimals.
Text RoundDecimal(Text digits, std::size_t places)
{
    const auto point = digits.find('.');
    if (point == Text::npos || digits.size() - point - 1 <= places) {
        return digits;
    }
    const bool up = digits[point + 1 + places] >= '5';
    digits.resize(point + (places > 0 ? places + 1 : 0));
    if (up) {
        IncrementDigits(digits);
    }
    return digits;
}

Text FormatDecimal(TextView unsignedDigits, bool negative, TextView pattern)
{
    const NumberPattern parsed = ParsePattern(pattern);
    const Text rounded = RoundDecimal(Text(unsignedDigits), parsed.maxFraction);
    const auto point = std::min(rounded.find('.'), rounded.size());
    Text integer = rounded.substr(0, point);
    Text fraction = point < rounded.size() ? rounded.substr(point + 1) : Text();

    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    if (integer.size() < parsed.minInteger) {
        integer.insert(0, parsed.minInteger - integer.size(), '0');
    }
    const auto lastDigit = fraction.find_last_not_of('0');
    fraction.resize(std::max(lastDigit == Text::npos ? 0 : lastDigit + 1, parsed.minFraction), '0');

    const bool zero = (integer + fraction).find_first_not_of('0') == Text::npos;
    if (parsed.thousands) {
        for (std::size_t i = integer.size(); i > 3; i -= 3) {
            integer.insert(i - 3, ".");
        }
    }
    const Text decimals = parsed.maxFraction > 0 ? "," + fraction : Text();
    return (negative && !zero ? "-" : "") + parsed.before + integer + decimals + parsed.after;
}

/// The lower-case form of a letter, any other character as it is.
int Folded(char c)
{
    const int byte = static_cast<unsigned char>(c);
    switch (byte) {
    case 0xD7: return byte;      // the multiplication sign, among the letters
    case 0x8A:                   // Š
    case 0x8C:                   // Œ
    case 0x8E: return byte + 16; // Ž
    case 0x9F: return 0xFF;      // Ÿ
    default: return (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE) ? byte + 32 : byte;
    }
}

Text SliceFrom(TextView text, std::ptrdiff_t start, std::size_t length)
{
    if (start < 1) {
        throw ErroreRunTime(Errore::ArgomentoNonValido);
    }
    const auto offset = static_cast<std::size_t>(start - 1);
    return offset >= text.size() ? Text() : Text(text.substr(offset, length));
}

std::size_t CheckedLength(std::ptrdiff_t length)
{
    if (length < 0) {
        throw ErroreRunTime(Errore::ArgomentoNonValido);
    }
    return static_cast<std::size_t>(length);
}

} // namespace

double Val(TextView text)
{
    Text number;
    bool point = false;
    for (const char c : text) {
        if (c == ' ') {
            continue;
        }
        const bool sign = (c == '-' || c == '+') && number.empty();
        if (!IsDigit(c) && !sign && (c != '.' || point)) {
            break;
        }
        point = point || c == '.';
        number += c;
    }
    return ParsePlain<double>(number);
}

double LocaleDouble(TextView text)
{
    return ParsePlain<double>(LocaleDigits(text));
}

f32 LocaleSingle(TextView text)
{
    return ParsePlain<f32>(LocaleDigits(text));
}

Text PlainText(i32 number)
{
    return std::to_string(number.value());
}

Text PlainText(double number)
{
    return WithComma(Decimal(number, kDoubleDigits));
}

Text PlainText(f32 number)
{
    return WithComma(Decimal(static_cast<double>(number), kSingleDigits));
}

Text Str(i32 number)
{
    return (number < 0 ? "" : " ") + PlainText(number);
}

Text Str(double number)
{
    return (number < 0 ? "" : " ") + Decimal(number, kDoubleDigits);
}

Text Format(double number, TextView pattern)
{
    return FormatDecimal(Decimal(std::fabs(number), kDoubleDigits), number < 0, pattern);
}

Text Format(i32 number, TextView pattern)
{
    const auto magnitude = number.value() < 0 ? -static_cast<std::int64_t>(number.value()) : number.value();
    return FormatDecimal(std::to_string(magnitude), number < 0, pattern);
}

std::ptrdiff_t Len(TextView text)
{
    return static_cast<std::ptrdiff_t>(text.size());
}

Text Mid(TextView text, std::ptrdiff_t start, std::ptrdiff_t length)
{
    return SliceFrom(text, start, CheckedLength(length));
}

Text Mid(TextView text, std::ptrdiff_t start)
{
    return SliceFrom(text, start, TextView::npos);
}

Text Left(TextView text, std::ptrdiff_t length)
{
    return Text(text.substr(0, CheckedLength(length)));
}

Text Right(TextView text, std::ptrdiff_t length)
{
    return Text(text.substr(text.size() - std::min(CheckedLength(length), text.size())));
}

std::ptrdiff_t InStr(TextView text, TextView part)
{
    const auto found = text.find(part);
    return found == TextView::npos ? 0 : static_cast<std::ptrdiff_t>(found) + 1;
}

std::ptrdiff_t InStrRev(TextView text, TextView part)
{
    const auto found = text.rfind(part);
    return found == TextView::npos ? 0 : static_cast<std::ptrdiff_t>(found) + 1;
}

Text Trim(TextView text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == TextView::npos) {
        return {};
    }
    return Text(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool CampoNonVuoto(TextView text)
{
    return text.find_first_not_of(' ') != TextView::npos;
}

int TextCompare(TextView a, TextView b)
{
    const auto order = std::lexicographical_compare_three_way(
        a.begin(), a.end(), b.begin(), b.end(), [](char left, char right) { return Folded(left) <=> Folded(right); });
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

bool SameText(TextView a, TextView b)
{
    return a.size() == b.size() && TextCompare(a, b) == 0;
}

} // namespace zelvia
