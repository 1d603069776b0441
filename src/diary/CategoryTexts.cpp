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

Text TestoKm(const RecordGiorno& giorno)
{
    return InTwoColumns(giorno.Km) + "," + PlainText(giorno.Metri);
}

Text TestoRipetizioni(const RecordGiorno& giorno)
{
    constexpr int fourDigits = 1000;
    return InTwoColumns(giorno.Ripetizioni) + " x " + PlainText(giorno.RipetizioniDistanza) +
           (giorno.RipetizioniDistanza >= fourDigits ? " @ " : "  @ ") + PlainText(giorno.RipetizioniQuante) + ":" +
           PlainText(giorno.RipetizioniTempi);
}

i16 PezzoKm(TextView testo)
{
    return NumberBefore(testo, ",");
}

i16 PezzoMetri(TextView testo)
{
    return Parsed<i16>(Mid(testo, InStr(testo, ",") + 1));
}

i16 PezzoVolte(TextView testo)
{
    return NumberBefore(testo, "x");
}

i16 PezzoDistanza(TextView testo)
{
    return NumberBetween(testo, "x", "@");
}

i16 PezzoQuante(TextView testo)
{
    return NumberBetween(testo, "@", ":");
}

i16 PezzoTempi(TextView testo)
{
    return Parsed<i16>(Mid(testo, InStrRev(testo, ":") + 1));
}

} // namespace zelvia
