// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers and dates in patterns: a double, a long, a day; the rest is the pattern.
#include "Harness.h"
#include "core/Conversions.h"
#include "core/Date.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

Text Printed(const char* pattern, long long number)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, number);
    return text;
}

/// At least as many digits as asked for, after the sign.
Text Padded(i32 number, int digits)
{
    const long long magnitude = std::llabs(static_cast<long long>(number.value()));
    const Text text = Printed("%lld", magnitude);
    const auto missing = static_cast<std::size_t>(std::max(0, digits - static_cast<int>(text.size())));
    const Text shown = Text(missing, '0') + (digits == 0 && magnitude == 0 ? Text() : text);
    return (number < 0 ? "-" : "") + shown;
}

Text Grouped(i32 number)
{
    Text text = Padded(number, 0);
    const std::size_t sign = number < 0 ? 1 : 0;
    for (std::size_t at = text.size(); at > sign + 3; at -= 3) {
        text.insert(at - 3, ".");
    }
    return text;
}

/// The patterns of the system on whole numbers.
void CheckLong(i32 number)
{
    const struct {
        const char* pattern;
        Text expected;
    } rows[] = {
        {"0", Padded(number, 1)},         {"00", Padded(number, 2)},       {"000", Padded(number, 3)},
        {"##", Padded(number, 0)},        {"###", Padded(number, 0)},      {"##0", Padded(number, 1)},
        {"##:", Padded(number, 0) + ":"}, {"0:", Padded(number, 1) + ":"}, {"###,###", Grouped(number)},
    };
    for (const auto& row : rows) {
        Require(Format(number, row.pattern) == row.expected, row.pattern);
        Require(Format(static_cast<double>(number.value()), row.pattern) == row.expected, row.pattern);
    }
    Require(Val(PlainText(number)) == number.value(), "the plain text of a long");
    Require(Val(Str(number)) == number.value(), "the text of a long with its blank");
}

void CheckDouble(double number)
{
    constexpr double largest = 1e9; // Beyond it the two decimals are not among the digits that a double keeps.
    if (!(std::fabs(number) < largest)) {
        return;
    }
    Text text = Format(number, "000.00");
    Require(text.size() >= 6 && text[text.size() - 3] == ',', "two decimals behind a comma");
    std::replace(text.begin(), text.end(), ',', '.');
    Require(std::fabs(std::strtod(text.c_str(), nullptr) - number) <= 0.005 + 1e-6, "rounded to two decimals");
    Require(std::fabs(LocaleDouble(PlainText(number)) - number) <= std::fabs(number) * 1e-14,
            "the plain text of a double");
}

CalendarDate DayFrom(std::uint32_t number)
{
    constexpr std::uint32_t days = 3615900; // 01/01/0100 to 31/12/9999
    return CalendarDate(100, 1, 1).PlusDays(static_cast<int>(number % days));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    const auto number = input.Take<double>();
    const i32 whole = input.Take<std::int32_t>();
    const CalendarDate day = DayFrom(input.Take<std::uint32_t>());
    const Text pattern = input.Rest();

    CheckLong(whole);
    CheckDouble(number);
    constexpr std::size_t longestNumber = 700; // A double of 309 digits with a dot after each three.
    Require(Format(number, pattern).size() <= longestNumber + pattern.size(), "the length of a number");
    Require(Format(whole, pattern).size() <= longestNumber + pattern.size(), "the length of a long");
    constexpr std::size_t longestPart = 9; // "settembre", "mercoledì"
    Require(Format(day, pattern).size() <= longestPart * pattern.size(), "the length of a date");
    Require(PlainText(number).size() <= longestNumber && PlainText(static_cast<f32>(whole.value())).size() <= 12,
            "the length of a plain number");
    return 0;
}
