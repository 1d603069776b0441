// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "diary/RecordGiorno.h"
#include "diary/Session.h"

namespace zelvia
{

/// The shared state of the program: one instance of each, alive for the whole run.
namespace Module1
{

extern BoundedArray<RecordGiorno, 0, 366> Giorni; ///< The open diary; place 0 is never used.
extern CalendarDate DataCorrente;                 ///< The date on the page.
extern Session session;

// Parts of the session under their own names.
inline i16& GiornoCorrente = session.GiornoCorrente;
inline i16& FileModificato = session.FileModificato;
inline Text& CartellaDiario = session.CartellaDiario;
inline Text& NomeTabellaAttiva = session.NomeTabellaAttiva;
inline Text& NomeTabellaAperta = session.NomeTabellaAperta;
inline i16& FlagTabellaSalvata = session.FlagTabellaSalvata;
inline i16& IndiceTabella = session.IndiceTabella;
inline Text& PercorsoCorrente = session.PercorsoCorrente;

/// Resets all of the state above, except Giorni, to its value at start.
void AzzeraStato();

/// Fills Giorni with the blank year of the system date's year; 366 places in a common year too, the last one then being
/// 1 January of the next.
void AzzeraAnno();

/// Blanks the day at `day`, 0..366, keeping its NumGiorno and Data.
void AzzeraRecordGiorno(i16 day);

/// Writes days 1..366 of Giorni to `path`, 136 values a day. Reports its own failure, under "ERRORE : "; the file is
/// then left as far as it was written.
void SalvaDiario(TextView path);

/// Reads `path` into days 1..366 of Giorni, in place and unchecked. A missing file is silent and changes nothing; any
/// other failure is reported under "**ERRORE : " and leaves what was read so far.
void CaricaDiario(TextView path);

} // namespace Module1
} // namespace zelvia
