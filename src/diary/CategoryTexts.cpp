// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CategoryTexts.h"

#include "core/Conversions.h"

namespace zelvia
{
namespace
{

/// With a blank in front of a number of one digit.
Text InTwoColumns(i16 number)
{
    return number > 9 ? PlainText(number) : Str(number);
}

/// Before the first `mark`; nothing without one.
i16 NumberBefore(TextView text, TextView mark)
{
    const auto position = InStr(text, mark);
    return position == 0 ? i16(0) : Parsed<i16>(Left(text, position - 1));
}

/// Between the last `first` and the last `second`; a missing one makes an invalid start or length.
i16 NumberBetween(TextView text, TextView first, TextView second)
{
    const auto mark = InStrRev(text, first);
    const auto start = mark == 0 ? 0 : mark + 1;
    return Parsed<i16>(Mid(text, start, InStrRev(text, second) - start));
}

} // namespace

bool HasDistance(const RecordGiorno& day)
{
    return day.Km != 0 || day.Metri != 0;
}

Text KmText(const RecordGiorno& day)
{
    return InTwoColumns(day.Km) + "," + PlainText(day.Metri);
}

Text RepetitionsText(const RecordGiorno& day)
{
    constexpr int fourDigits = 1000;
    return InTwoColumns(day.Ripetizioni) + " x " + PlainText(day.RipetizioniDistanza) +
           (day.RipetizioniDistanza >= fourDigits ? " @ " : "  @ ") + PlainText(day.RipetizioniQuante) + ":" +
           PlainText(day.RipetizioniTempi);
}

i16 KmPart(TextView text)
{
    return NumberBefore(text, ",");
}

i16 MetresPart(TextView text)
{
    return Parsed<i16>(Mid(text, InStr(text, ",") + 1));
}

i16 TimesPart(TextView text)
{
    return NumberBefore(text, "x");
}

i16 DistancePart(TextView text)
{
    return NumberBetween(text, "x", "@");
}

i16 MinutesPart(TextView text)
{
    return NumberBetween(text, "@", ":");
}

i16 SecondsPart(TextView text)
{
    return Parsed<i16>(Mid(text, InStrRev(text, ":") + 1));
}

} // namespace zelvia
