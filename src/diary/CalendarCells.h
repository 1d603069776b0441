// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/CalendarGrid.h"

/// A box of the grid and its column of the calendar. Rows are those of the calendar, 1..100; any other raises error 9.
namespace zelvia::Module1
{

/// What the box shows for the column's value: nothing for 0, and no date for a row without a day.
Text TestoCasella(CalendarGrid::Casella casella, int riga);

/// The box's text into the column. Raises error 6 for a number beyond the column's type.
void AssegnaCasella(CalendarGrid::Casella casella, int riga, TextView testo);

/// True when the box's text stands for another value than the column's; the case of texts does not count.
bool CasellaDiversa(CalendarGrid::Casella casella, int riga, TextView testo);

/// The number that a box's text stands for; an empty one is 0.
double NumeroCasella(CalendarGrid::Casella casella, TextView testo);

} // namespace zelvia::Module1
