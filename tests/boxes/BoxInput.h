// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <span>

/// What is put into the boxes of every window, and what a box of each kind makes of it.
namespace zelvia::test
{

enum class Entry { Typed, Pasted, FromMenu };

struct BadInput {
    const char* name;
    Entry how;
    QString text;
};

/// What a box of numbers makes of an input.
struct Outcome {
    const char* shown;          ///< Right after it.
    int value;                  ///< What the model then holds.
    const char* left = nullptr; ///< Once the box has been left, when that is another text.
    bool refused = false;       ///< The box may not be left.

    QString Shown() const { return QString::fromUtf8(shown); }
    QString Left() const { return QString::fromUtf8(left != nullptr ? left : shown); }
};

inline constexpr std::size_t kNumberInputs = 14;

std::span<const BadInput> NumberInputs();

/// The outcomes in the order of the inputs.
using NumberKind = std::array<Outcome, kNumberInputs>;

extern const NumberKind kTwoCharacters;         ///< Without a limit, shown as entered.
extern const NumberKind kTwoCharactersToALimit; ///< With a limit from 12 to 98.
extern const NumberKind kTwoDigitsToALimit;     ///< The same in the format "00".
extern const NumberKind kThreeCharacters;       ///< Without a limit, shown as entered.
extern const NumberKind kThreeDigits;           ///< Without a limit, in the format "000".
extern const NumberKind kYear;                  ///< Four characters up to 2099.
extern const NumberKind kThousandsTo9999;       ///< Five characters with the dot of the thousands.
extern const NumberKind kThousandsTo999999;     ///< Seven of them.

/// For boxes of texts; what they show is `Shown` of it.
std::span<const BadInput> TextInputs();

/// What a box of texts shows of an input when it takes so many characters.
QString Shown(const BadInput& input, int limit);

} // namespace zelvia::test
