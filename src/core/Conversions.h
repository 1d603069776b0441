// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <cstddef>

namespace zelvia
{

/// The number at the start of a text, 0 when there is none. Blanks before it and between its digits are skipped, the
/// only decimal point is ".". Raises error 6 when the number is beyond a double.
double Val(TextView text);

/// The same rounded to a whole number. Raises error 6 when that is out of range too.
template <typename Integer>
Integer Parsed(TextView text)
{
    return RoundTo<Integer>(Val(text));
}

/// Reads a number as the Italian locale writes it, comma for the decimals and dots for the thousands.
/// Raises error 13 for a text that is not a number.
double LocaleDouble(TextView text);
f32 LocaleSingle(TextView text);

/// The digits of a number, a minus sign if negative, no blank; a float's fraction follows a comma.
Text PlainText(i32 number);
Text PlainText(double number);
Text PlainText(f32 number);

/// As PlainText with one blank in front when the number is not negative, and "." as decimal point.
Text Str(i32 number);
Text Str(double number);

/// A number in a pattern of 0 (a digit always written), # (a digit written if needed), a comma between them (thousands
/// dots) and a point (decimal comma); any other character is copied unchanged. Halves round away from zero.
Text Format(double number, TextView pattern);
Text Format(i32 number, TextView pattern);

/// Positions count from 1.
std::ptrdiff_t Len(TextView text);

/// `length` characters from position `start`, or what there is. Raises error 5 for a start below 1 or a negative
/// length.
Text Mid(TextView text, std::ptrdiff_t start, std::ptrdiff_t length);
Text Mid(TextView text, std::ptrdiff_t start);

/// Raise error 5 for a negative length.
Text Left(TextView text, std::ptrdiff_t length);
Text Right(TextView text, std::ptrdiff_t length);

/// The position of the first `part` in `text`, 0 when not found; case-sensitive.
std::ptrdiff_t InStr(TextView text, TextView part);

/// The position of the last `part` in `text`, 0 when not found; case-sensitive.
std::ptrdiff_t InStrRev(TextView text, TextView part);

/// Removes blanks, and only blanks, at both ends.
Text Trim(TextView text);

/// Not empty once trimmed.
bool CampoNonVuoto(TextView text);

/// Case-insensitive comparison, accented letters included: below 0, 0 or above 0.
int TextCompare(TextView a, TextView b);

/// True when the two texts are equal, ignoring case.
bool SameText(TextView a, TextView b);

} // namespace zelvia
