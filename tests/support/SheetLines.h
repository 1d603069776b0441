// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <QByteArrayList>

namespace zelvia::test
{

/// The operations of a sheet, a line each: `16,4 Times New Roman 11 italic|text`, `line 5,3 5,38`, `box 3,1 94,48`,
/// `picture 15,3` and `page`.
QByteArrayList SheetLines(const Sheet& sheet);

/// The texts that begin in the row `y` of the first page, left to right as printed: `16|text`.
QByteArrayList SheetRow(const Sheet& sheet, int y);

} // namespace zelvia::test
