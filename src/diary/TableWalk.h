// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/RecordGiorno.h"

namespace zelvia
{

/// One row of a training table, field by field as its columns.
struct RigaPiano {
    i16 km;
    i16 metri;
    i16 ore;
    i16 minuti;
    i16 secondi;
    i16 mediaMinuti;
    i16 mediaSecondi;
    Text andatura;
    Text fondo;
    i16 ripetVolte;
    i16 ripetDistanza;
    i16 ripetQuante;
    i16 ripetTempi;
};

/// Row 0..31 of the table in memory. Raises error 9 for any other.
RigaPiano RigaDellaTabella(i16 riga);

/// How many of the six demands of a row a day fails, 0..6; a row without demands is failed by one unless the day is
/// empty too.
i16 ConfrontaAllenamento(const RecordGiorno& giorno, const RigaPiano& riga);

/// What a walk along the days of the diary found.
struct EsitoCammino {
    enum class Stato {
        PrimaDellInizio, ///< The day shown lies before the table's start.
        Finita,          ///< A day came after the one that met the last row.
        InCorso
    };
    Stato stato;
    i16 riga; ///< While under way, the row to show, 0..31.
};

namespace Module1
{

/// Compares day `giorno` with row `riga` of the table in memory; `esito` 0 means the row is met. Reports its own
/// failure and then leaves `esito` as it is.
void ControlloAllenamento(i16 giorno, i16 riga, i16& esito);

/// Walks the days from the table's start to the day shown, leaving a row behind only when a day has met it;
/// IndiceTabella is then the row to be met next, 32 when all are behind.
EsitoCammino CamminaTabella();

} // namespace Module1
} // namespace zelvia
