// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Date.h"
#include "core/Numbers.h"
#include "core/SparseArray.h"
#include "core/Text.h"

namespace zelvia
{

/// The lines of a day's notes that the page shows.
inline constexpr int kFirstNote = 3;
inline constexpr int kLastNote = 10;

/// One day of the diary. Fields.h has what is known of each field.
struct RecordGiorno {
    i16 NumGiorno;
    CalendarDate Data;
    Text Percorso;
    Text Lunghezza; ///< A class such as "Medio", not a distance.
    i16 Km;
    i16 Metri; ///< Metres beyond the whole kilometres, 0..999 as the page enters them.
    Text Modo;
    Text Fondo;
    Text Tipo; ///< "Gara" in any case marks a race, any other non-empty text a training day.
    i16 OraInizio;
    i16 MinutiInizio;
    i16 SecondiInizio;
    i16 OraFine;
    i16 MinutiFine;
    i16 SecondiFine;
    Text TempoImpiegato;               ///< As shown: hours:minutes:seconds, or empty.
    Text MediaKm;                      ///< As shown: minutes:seconds per kilometre, or empty.
    SparseArray<Text, 0, 100> ListaKm; ///< Place 100 is shown and committed but is not in the file.
    Text Stagione;
    Text TempoAtm;
    Text Temperatura;
    i32 Corridori = 1; ///< A blank day was run alone.
    i16 Peso;          ///< 0 means not entered.
    i16 Ripetizioni;
    i16 RipetizioniDistanza;               ///< Metres.
    i16 RipetizioniQuante;                 ///< Minutes of each repetition.
    i16 RipetizioniTempi;                  ///< Seconds of each repetition.
    BoundedArray<Text, 0, kLastNote> Note; ///< 1 and 2 are in the file, but not on the page; 0 is in neither.

    friend bool operator==(const RecordGiorno&, const RecordGiorno&) = default;
};

} // namespace zelvia
