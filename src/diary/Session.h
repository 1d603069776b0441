// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <vector>

namespace zelvia
{

/// What belongs to the open diary beside its days. A command that opens another one keeps it aside, resets it and, when
/// it is cancelled, puts it back, each time as a whole.
struct Session {
    i16 FileModificato;  ///< 1 when memory differs from what is on disk.
    Text NomeFile;       ///< Full path of the diary.
    Text NomeBaseFile;   ///< Its name without folder and extension.
    Text CartellaDiario; ///< Its folder, no backslash at the end.
    Text EsitoDir;       ///< What a test for that folder found.
    i16 GiornoCorrente;  ///< Day of the year on the page, the place in Giorni.
    i16 GiornoMese = 1;  ///< The date on the page.
    i16 MeseCorrente = 1;
    i16 AnnoCorrente = 1;
    Text NomeTabellaAttiva; ///< Full path of the active table, "" for none.
    Text NomeTabellaAperta; ///< Full path of the table to open in the editor.
    i16 FlagTabellaSalvata; ///< 1 when the table's save dialog was cancelled.
    i16 IndiceTabella;      ///< Row of the active table to be reached next, 1..32.
    Text PercorsoCorrente;  ///< Route chosen last in the list of routes.
    i16 GiorniCorseAnno;    ///< Runs of the year up to the day on the page.
    i16 GareAnno;
    i16 NoteAperte;
    i16 ListaAperta; ///< Number of the list that last took the focus, 9 for the splits; 0 when none is open.

    // What stays when another diary is opened.
    i16 UltimoPeso;                              ///< Last weight above 0 up to the day on the page, kilograms.
    i32 KmAnno;                                  ///< Kilometres of the year up to the day on the page.
    BoundedArray<std::vector<Text>, 1, 8> lists; ///< The entries of the selection lists.

    friend bool operator==(const Session&, const Session&) = default;

    /// The state at start but for what stays.
    Session ForOtherDiary() const
    {
        Session other;
        other.UltimoPeso = UltimoPeso;
        other.KmAnno = KmAnno;
        other.lists = lists;
        return other;
    }
};

} // namespace zelvia
