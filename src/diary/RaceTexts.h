// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia::Module1
{

/// What the day page shows of a race.
struct RaceTexts {
    Text gara;
    Text localita;
    Text partecipanti;
    Text tempo;
    Text risultato;
    Text categoria;
    Text risultatoCat;
    Text lunghezza;
};

/// The texts of a row of the calendar, 1..100; any other raises error 9.
RaceTexts RaceTextsOf(i16 row);

} // namespace zelvia::Module1
