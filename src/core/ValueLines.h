// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

// What the lines of a value file are made of.
namespace zelvia
{

inline constexpr TextView kLineEnd = "\r\n";
inline constexpr TextView kBlankLine = "\"\"\r\n"; ///< An empty text, as nearly every text of a diary is.

} // namespace zelvia
