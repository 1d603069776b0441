// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Colours.h"

/// The colours of the table editor, given as red, green and blue.
namespace zelvia::TableColours
{

inline constexpr QColor Editing{0xC0, 0xC0, 0xC0}; ///< Text not yet accepted.
inline constexpr QColor Accepted{0xFF, 0xFF, 0xFF};
inline constexpr QColor Chosen{0x80, 0x80, 0xFF}; ///< The row of a right click.
inline constexpr QColor Active{0xFF, 0xFF, 0x00}; ///< The start date of the active table.
inline constexpr QColor Passed{0x80, 0x80, 0x80}; ///< Rows that the walk has left behind.
inline constexpr QColor Fore{0x00, 0x00, 0x00};   ///< Any other row: the grid is light on a dark desktop too.

} // namespace zelvia::TableColours
