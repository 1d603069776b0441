// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <optional>

namespace zelvia
{

/// A row's distance, time and average per kilometre as its boxes hold them; an empty box counts as 0.
struct GruppiRiga {
    Text km;
    Text metri;
    Text ore;
    Text minuti;
    Text secondi;
    Text mediaMinuti;
    Text mediaSecondi;
    Text mediaMillesimi;
};

/// What a row of the plan asks of the calculation.
enum class CalcoloRiga { Niente, MediaKm, Tempo, Distanza };

/// Average minutes, seconds and thousandths, the last as text with two decimals.
struct MediaRiga {
    i16 minuti;
    i16 secondi;
    Text millesimi;
};

struct DistanzaRiga {
    i32 km;
    i32 metri;
};

struct TempoRiga {
    i32 ore;
    i32 minuti;
    i32 secondi;
};

// When each of the three is to be computed; the tests follow one another, each seeing what the one before wrote.
bool ChiedeMediaKm(const GruppiRiga& riga);
bool ChiedeTempo(const GruppiRiga& riga);
bool ChiedeDistanza(const GruppiRiga& riga);

/// True when exactly one of the three groups is given; the average counts only with both minutes and seconds.
bool SoloUnGruppo(const GruppiRiga& riga);

/// The average from distance and time; nothing when it is 61 minutes or more. Raises error 6 or 11 when one of them is
/// 0, 6 when a number is out of range.
std::optional<MediaRiga> MediaDi(const GruppiRiga& riga);

/// The distance from time and average. Raises as MediaDi.
DistanzaRiga DistanzaDi(const GruppiRiga& riga);

/// The time from distance and average; hours can be above 24. Raises error 6 when a number is out of range.
TempoRiga TempoDi(const GruppiRiga& riga);

} // namespace zelvia
