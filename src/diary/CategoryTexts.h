// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"

namespace zelvia
{

/// Whether a distance was entered.
bool HasDistance(const RecordGiorno& day);

/// A day's distance as a value of its statistic: " 7,500", "12,0". The blank in front of one digit keeps the comma in
/// its column; the metres are not padded.
Text KmText(const RecordGiorno& day);

/// A day's repetitions as a value of their statistic: " 5 x 1000 @ 4:30", "10 x 400  @ 1:20". The additional blanks
/// line the rows up.
Text RepetitionsText(const RecordGiorno& day);

// The numbers in such a text, each read as Val does. All raise error 6 for a number beyond an i16.

/// Before the first ",", 0 without one.
i16 KmPart(TextView text);
/// After the first ",", or the whole text without one.
i16 MetresPart(TextView text);
/// Before the first "x", 0 without one.
i16 TimesPart(TextView text);
/// Between the last "x" and the last "@". Raises error 5 without an "x", or when no "@" follows it.
i16 DistancePart(TextView text);
/// Between the last "@" and the last ":". Raises error 5 without an "@", or when no ":" follows it.
i16 MinutesPart(TextView text);
/// After the last ":", or the whole text without one.
i16 SecondsPart(TextView text);

} // namespace zelvia
