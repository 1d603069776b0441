// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <variant>

/// What the boxes of a grid show: values in memory, their formats and limits.
namespace zelvia
{

struct Message;

/// How the text of a box is written once the box is left.
enum class CellFormat { Plain, TwoDigits, ThreeDigits, Capitals, Thousands };

/// The text in one of the formats; an empty one stays empty.
Text Formatted(TextView text, CellFormat format);

/// The number of a box's text, a thousands dot not counted; an empty text is 0. Raises error 6 beyond a double.
double CellNumber(TextView text, CellFormat format);

/// The highest number that a box accepts, and the message beyond it.
struct Limit {
    double highest = 0; ///< 0 for no limit.
    const Message* message = nullptr;
};

/// The value that a box shows.
using Cell = std::variant<i16*, i32*, Text*>;

/// The value of a row in an array of the program.
template <auto& Values>
Cell CellOf(int row)
{
    return &Values[row];
}

/// What a box shows of the value: nothing for 0, texts unchanged.
Text CellText(const Cell& cell, CellFormat format);

/// Takes a box's text into the value, rounding numbers. Raises error 6 for a number beyond its type.
void SetCell(const Cell& cell, TextView text, CellFormat format);

/// True when SetCell would not change the value. Raises what SetCell raises.
bool CellHolds(const Cell& cell, TextView text, CellFormat format);

} // namespace zelvia
