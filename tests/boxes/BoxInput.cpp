// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "boxes/BoxInput.h"

#include <QHash>

namespace zelvia::test
{
namespace
{

constexpr qsizetype kMegabytes = 5'000'000;

const std::array<BadInput, kNumberInputs> kNumbers = {{
    {"zero", Entry::Typed, QStringLiteral("0")},
    {"no digits", Entry::Typed, QStringLiteral("a-,. €è+/:")},
    {"blanks", Entry::Pasted, QString(10, u' ')},
    {"blanks around", Entry::Pasted, QStringLiteral(" 7 ")},
    {"letters", Entry::Pasted, QStringLiteral("abcdefghij")},
    {"accented letters", Entry::Pasted, QStringLiteral("àè€ìòù")},
    {"outside the set", Entry::Pasted, QStringLiteral("Жλ→漢字→→→")},
    {"control characters", Entry::Pasted,
     QStringLiteral("\0\t1\r\n\x1B"
                    "2\x7F")},
    {"a minus sign", Entry::Pasted, QStringLiteral("-5")},
    {"a comma", Entry::Pasted, QStringLiteral("1,5")},
    {"a point", Entry::Pasted, QStringLiteral("1.5")},
    {"a power of ten", Entry::Pasted, QStringLiteral("1e9")},
    {"more than it holds", Entry::Pasted, QStringLiteral("1234567890")},
    {"megabytes", Entry::FromMenu, QString(kMegabytes, u'9')},
}};

/// The texts that are to be shown, but for those that come through as they are.
const QHash<QByteArray, QString>& ShownTexts()
{
    static const QHash<QByteArray, QString> texts = {
        {"outside the set, typed", QStringLiteral("abc")},
        {"outside the set, pasted", QStringLiteral("a???b")},
        {"control characters", QStringLiteral("a b")},
        // The set has the second one among its unassigned bytes.
        {"control characters beyond 127", QStringLiteral("a?b\u0090c")},
    };
    return texts;
}

/// The same but for the last one, which is beyond the limit.
constexpr NumberKind LastRefused(NumberKind kind)
{
    kind.back().refused = true;
    return kind;
}

} // namespace

constexpr NumberKind kTwoCharacters = {{
    {"0", 0},
    {"", 0},
    {"  ", 0},
    {" 7", 7},
    {"ab", 0},
    {"àè", 0},
    {"??", 0},
    {"12", 12},
    {"-5", -5},
    {"1,", 1},
    {"1.", 1},
    {"1e", 1},
    {"12", 12},
    {"99", 99},
}};

constexpr NumberKind kTwoCharactersToALimit = LastRefused(kTwoCharacters);

const NumberKind kTwoDigitsToALimit = {{
    {"0", 0, "00"},
    {"", 0},
    {"  ", 0, "00"},
    {" 7", 7, "07"},
    {"ab", 0, "00"},
    {"àè", 0, "00"},
    {"??", 0, "00"},
    {"12", 12},
    {"-5", -5, "-05"},
    {"1,", 1, "01"},
    {"1.", 1, "01"},
    {"1e", 1, "01"},
    {"12", 12},
    {"99", 99, nullptr, true},
}};

const NumberKind kThreeCharacters = {{
    {"0", 0},
    {"", 0},
    {"   ", 0},
    {" 7 ", 7},
    {"abc", 0},
    {"àè€", 0},
    {"???", 0},
    {"12", 12},
    {"-5", -5},
    {"1,5", 1},
    // Half goes to the even one.
    {"1.5", 2},
    {"1e9", 1},
    {"123", 123},
    {"999", 999},
}};

const NumberKind kThreeDigits = {{
    {"0", 0, "000"},
    {"", 0},
    {"   ", 0, "000"},
    {" 7 ", 7, "007"},
    {"abc", 0, "000"},
    {"àè€", 0, "000"},
    {"???", 0, "000"},
    {"12", 12, "012"},
    {"-5", -5, "-005"},
    {"1,5", 1, "001"},
    {"1.5", 2, "002"},
    {"1e9", 1, "001"},
    {"123", 123},
    {"999", 999},
}};

const NumberKind kYear = {{
    {"0", 0},
    {"", 0},
    {"    ", 0},
    {" 7 ", 7},
    {"abcd", 0},
    {"àè€ì", 0},
    {"????", 0},
    {"12", 12},
    {"-5", -5},
    {"1,5", 1},
    {"1.5", 2},
    {"1e9", 1},
    {"1234", 1234},
    {"9999", 9999, nullptr, true},
}};

// The dot goes before the last three of four characters and more, whatever they are; a first one is taken out.
const NumberKind kThousandsTo9999 = {{
    {"0", 0},
    {"", 0},
    {"     ", 0, "  .   "},
    {" 7 ", 7},
    {"abcde", 0, "ab.cde"},
    {"àè€ìò", 0, "àè.€ìò"},
    {"?????", 0, "??.???"},
    {"12", 12},
    {"-5", -5},
    {"1,5", 1},
    {"1.5", 15, "15"},
    {"1e9", 1},
    {"12345", 12345, nullptr, true},
    {"99999", 99999, nullptr, true},
}};

const NumberKind kThousandsTo999999 = {{
    {"0", 0},
    {"", 0},
    {"       ", 0, "    .   "},
    {" 7 ", 7},
    {"abcdefg", 0, "abcd.efg"},
    {"àè€ìòù", 0, "àè€.ìòù"},
    {"???????", 0, "????.???"},
    {"12", 12},
    {"-5", -5},
    {"1,5", 1},
    {"1.5", 15, "15"},
    {"1e9", 1},
    {"1234567", 1234567, nullptr, true},
    {"9999999", 9999999, nullptr, true},
}};

std::span<const BadInput> NumberInputs()
{
    return kNumbers;
}

std::span<const BadInput> TextInputs()
{
    static const std::array<BadInput, 11> texts = {{
        {"blanks", Entry::Pasted, QString(100, u' ')},
        {"blanks around", Entry::Pasted, QStringLiteral("  Lago  ")},
        {"accented letters, typed", Entry::Typed, QStringLiteral("àèéìòù€")},
        {"accented letters, pasted", Entry::Pasted, QStringLiteral("éÀÈÌÒÙ€")},
        {"outside the set, typed", Entry::Typed, QStringLiteral("aЖb→c")},
        {"outside the set, pasted", Entry::Pasted, QStringLiteral("aЖ→\U0001F3C3b")},
        {"control characters", Entry::Pasted, QStringLiteral("a\0\t\r\n\x1B\x7F b")},
        {"control characters beyond 127", Entry::Pasted, QStringLiteral("a\u0085b\u0090c")},
        {"a number", Entry::Typed, QStringLiteral("-1,5e9")},
        {"more than it holds", Entry::Pasted, QStringLiteral("abcdefghij").repeated(10)},
        {"megabytes", Entry::FromMenu, QString(kMegabytes, u'm')},
    }};
    return texts;
}

QString Shown(const BadInput& input, int limit)
{
    return ShownTexts().value(input.name, input.text).left(limit);
}

} // namespace zelvia::test
