// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Dice.h"

#include <QString>

namespace zelvia::monkey
{

/// What a hand may type: numbers, words, blanks, accents, control characters, texts too long or outside the character
/// set. No double quote: a text that holds one can't be read back from a file, as the format has it.
QString AnyText(Dice& dice);

/// Up to `length` digits, mostly a number that a box of a date, a time or a distance takes.
QString AnyDigits(Dice& dice, int length);

/// What may be on the clipboard: any text, with line ends as well.
QString AnyClip(Dice& dice);

/// The text with whatever does not show spelt out.
QString Spelt(const QString& text);

} // namespace zelvia::monkey
