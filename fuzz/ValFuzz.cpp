// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers from texts: Val, and the conversions of the Italian locale.
#include "Harness.h"
#include "Reference.h"
#include "core/Conversions.h"

#include <cmath>
#include <cstdlib>
#include <limits>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool Beyond(double number)
{
    return !(std::fabs(number) <= std::numeric_limits<double>::max());
}

/// Equal, except for how a number too small for the type is read.
bool Same(double actual, double expected, double smallest)
{
    return actual == expected || (std::fabs(expected) < smallest && std::fabs(actual) <= std::fabs(expected));
}

void CheckVal(const Text& text)
{
    const double expected = PlainVal(text);
    double actual = 0;
    const int error = RaisedBy([&] { actual = Val(text); });
    Require(error == (Beyond(expected) ? Errore::Overflow : 0), "the error of Val");
    Require(error != 0 || Same(actual, expected, std::numeric_limits<double>::min()), "what Val gives");
}

/// The number with its dots dropped and its comma a point, or nothing when it is not a number.
Text AsPlain(const Text& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == Text::npos) {
        return {};
    }
    Text plain;
    bool digit = false;
    bool comma = false;
    for (std::size_t i = first; i <= text.find_last_not_of(' '); ++i) {
        const char c = text[i];
        const bool sign = i == first && (c == '-' || c == '+');
        if (!IsDigit(c) && !sign && (c != ',' || comma) && (c != '.' || comma || !digit)) {
            return {};
        }
        digit = digit || IsDigit(c);
        comma = comma || c == ',';
        plain += c == ',' ? Text(".") : c == '.' ? Text() : Text(1, c);
    }
    return digit ? plain : Text();
}

template <typename Float>
void CheckLocale(const Text& text, Float (*convert)(TextView), Float (*parse)(const char*, char**))
{
    const Text plain = AsPlain(text);
    const Float expected = plain.empty() ? 0 : parse(plain.c_str(), nullptr);
    const bool beyond = !(std::fabs(expected) <= std::numeric_limits<Float>::max());
    const int wanted = plain.empty() ? Errore::TipoNonCorrispondente : beyond ? Errore::Overflow : 0;
    Float actual = 0;
    const int error = RaisedBy([&] { actual = convert(text); });
    Require(error == wanted, "the error of the locale's conversion");
    Require(error != 0 || Same(static_cast<double>(actual), static_cast<double>(expected),
                               static_cast<double>(std::numeric_limits<Float>::min())),
            "what the locale's conversion gives");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = InputText(data, size);
    CheckVal(text);
    CheckLocale<double>(text, LocaleDouble, std::strtod);
    CheckLocale<f32>(text, LocaleSingle, std::strtof);
    return 0;
}
