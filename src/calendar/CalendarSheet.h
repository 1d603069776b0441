// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <array>
#include <cstddef>

namespace zelvia
{

/// The boxes of a row of the calendar, in the order of the grid.
struct CalendarSheetRow {
    Text giorno;
    Text mese;
    Text anno;
    Text gara;
    Text localita;
    Text km;
    Text metri;
    Text partecipanti;
    Text risultato;
    Text ore;
    Text minuti;
    Text secondi;
    Text categoria;
    Text risultatoCat;
};

/// What stands on a page of the calendar window.
struct CalendarSheetTexts {
    CalendarDate data;
    Text titolo;
    std::array<CalendarSheetRow, 20> righe;
};

/// The sheet of a page of the race calendar.
Sheet CalendarSheet(const CalendarSheetTexts& pagina);

} // namespace zelvia
