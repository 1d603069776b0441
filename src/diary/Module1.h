// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "diary/RecordGiorno.h"

namespace zelvia
{

/// The shared state of the program: one instance of each, alive for the whole run.
namespace Module1
{

extern BoundedArray<RecordGiorno, 0, 366> Giorni; ///< The open diary; place 0 is never used.
extern CalendarDate DataCorrente;                 ///< The date on the page.
extern i16 GiornoCorrente;                        ///< Its day of the year, the place in Giorni.
extern i16 FileModificato;                        ///< 1 when memory differs from what is on disk.
extern Text CartellaDiario;                       ///< Folder of the open diary, no backslash at its end.
extern Text NomeTabellaAttiva;                    ///< Full path of the active table, "" for none.
extern Text NomeTabellaAperta;                    ///< Full path of the table to open in the editor.
extern i16 FlagTabellaSalvata;                    ///< 1 when the table's save dialog was cancelled.
extern i16 IndiceTabella;                         ///< Row of the active table to be met next, 1..32.
extern Text PercorsoCorrente;                     ///< Route chosen last in the list of routes.

/// Gives all of the state above, but for Giorni, its value at start.
void AzzeraStato();

/// Fills Giorni with the blank year of the system date's year; 366 places in a common year too, the last one then being
/// 1 January of the next.
void AzzeraAnno();

/// Blanks the day at `giorno`, 0..366, keeping its NumGiorno and Data.
void AzzeraRecordGiorno(i16 giorno);

} // namespace Module1
} // namespace zelvia
