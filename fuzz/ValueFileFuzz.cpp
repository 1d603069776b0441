// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of values against the simplest one possible. The first byte places the edge of the reader's buffer within
// the input, the next four choose the kinds of values to read; the rest is the file.
#include "Harness.h"
#include "Reference.h"
#include "core/ValueFile.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <variant>

namespace zelvia::fuzz
{
namespace
{

using Value = std::variant<Text, i16, i32, CalendarDate>;

constexpr const char* kFile = "valori";
constexpr std::size_t kBuffer = 1 << 9; // As much as the reader takes in one piece in this build.

Value BlankOf(unsigned kind)
{
    switch (kind % 4) {
    case 0: return Text();
    case 1: return i16();
    case 2: return i32();
    default: return CalendarDate();
    }
}

std::size_t SkipDigits(const Text& text, std::size_t at)
{
    return std::min(text.find_first_not_of("0123456789", at), text.size());
}

/// A decimal number with a sign, a fraction or an exponent.
bool IsNumber(const Text& text)
{
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const std::size_t first = at;
    at = SkipDigits(text, at);
    std::size_t digits = at - first;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction = at + 1;
        at = SkipDigits(text, fraction);
        digits += at - fraction;
    }
    if (digits > 0 && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t sign = at + 1;
        const bool hasSign = sign < text.size() && (text[sign] == '-' || text[sign] == '+');
        const std::size_t exponent = sign + (hasSign ? 1 : 0);
        at = SkipDigits(text, exponent);
        return at == text.size() && at > exponent;
    }
    return digits > 0 && at == text.size();
}

template <typename Integer>
int Expect(const Text& text, CheckedInteger<Integer>& value)
{
    if (!IsNumber(text)) {
        return Errore::TipoNonCorrispondente;
    }
    const double rounded = std::nearbyint(std::strtod(text.c_str(), nullptr));
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        return Errore::Overflow;
    }
    value = static_cast<Integer>(rounded);
    return 0;
}

int Expect(const Text& text, CalendarDate& value)
{
    const Text form = "#dddd-dd-dd#";
    if (text.size() != form.size()) {
        return Errore::TipoNonCorrispondente;
    }
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == 'd' ? text[i] < '0' || text[i] > '9' : text[i] != form[i]) {
            return Errore::TipoNonCorrispondente;
        }
    }
    const int year = std::atoi(text.substr(1, 4).c_str());
    const int month = std::atoi(text.substr(6, 2).c_str());
    const int day = std::atoi(text.substr(9, 2).c_str());
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 100 || month < 1 || month > 12 || day < 1 || day > lengths[month - 1]) {
        return Errore::TipoNonCorrispondente;
    }
    value = CalendarDate(year, static_cast<unsigned>(month), static_cast<unsigned>(day));
    return 0;
}

/// The error that the next value must raise, or 0 and the value.
int Expected(Reference& reference, Value& value)
{
    if (std::holds_alternative<Text>(value)) {
        const auto text = reference.NextText();
        value = text.value_or(std::get<Text>(value));
        return text ? 0 : Errore::FineFile;
    }
    bool ended = false;
    const auto bare = reference.NextBare(ended);
    if (!bare) {
        return ended || !reference.NextText() ? Errore::FineFile : Errore::TipoNonCorrispondente;
    }
    const int error = std::visit(
        [&](auto& number) {
            if constexpr (std::is_same_v<std::decay_t<decltype(number)>, Text>) {
                return 0;
            } else {
                return Expect(*bare, number);
            }
        },
        value);
    if (error == 0) {
        reference.SkipSeparator();
    }
    return error;
}

int Read(ValueReader& reader, Value& value)
{
    return RaisedBy([&] { std::visit([&](auto& target) { reader.Input(target); }, value); });
}

/// Reads the whole file by both and returns the values.
std::vector<Value> ReadAll(const Text& bytes, unsigned kinds)
{
    ValueReader reader(Scratch::Instance().Path(kFile));
    Reference reference(bytes);
    std::vector<Value> values;
    while (true) {
        const auto index = static_cast<unsigned>(values.size());
        Value actual = BlankOf(kinds >> index % 16 * 2);
        Value expected = actual;
        const int error = Expected(reference, expected);
        Require(Read(reader, actual) == error, "the error of a value");
        Require(actual == expected, "a value");
        if (error != 0) {
            return values;
        }
        Require(reader.AtEnd() == reference.AtEnd(), "the end of the file");
        values.push_back(actual);
    }
}

bool Holdable(const std::vector<Value>& values)
{
    return std::none_of(values.begin(), values.end(), [](const Value& value) {
        return std::holds_alternative<Text>(value) && HasQuote(std::get<Text>(value));
    });
}

} // namespace
} // namespace zelvia::fuzz

using namespace zelvia;
using namespace zelvia::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    const auto edge = input.Take<std::uint8_t>();
    const auto kinds = input.Take<std::uint32_t>();
    Text bytes = input.Rest();
    const Scratch& scratch = Scratch::Instance();
    if (edge >= 128) {
        bytes.insert(0, "\"" + Text(kBuffer - edge, 'x') + "\"\r\n");
    }
    scratch.Write(kFile, bytes);
    const std::vector<Value> values = ReadAll(bytes, kinds);
    if (!Holdable(values)) {
        return 0;
    }
    {
        ValueWriter writer(scratch.Path(kFile));
        for (const Value& value : values) {
            std::visit([&](const auto& held) { writer.Write(held); }, value);
        }
        writer.Close();
    }
    Require(ReadAll(scratch.Read(kFile), kinds) == values, "the values that were written");
    return 0;
}
