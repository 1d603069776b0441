// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RaceTexts.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"

namespace zelvia::Module1
{

RaceTexts RaceTextsOf(i16 row)
{
    constexpr TextView thousands = "###,###";
    RaceTexts texts;
    texts.gara = Gara[row];
    texts.localita = Localita[row];
    texts.partecipanti = Format(Partecipanti[row], thousands);
    texts.tempo = PlainText(OreGara[row]) + ":" + Format(MinutiGara[row], "00") + ":" + Format(SecondiGara[row], "00");
    texts.risultato = Format(Risultato[row], thousands);
    texts.categoria = Categoria[row];
    texts.risultatoCat = Format(RisultatoCat[row], thousands);
    texts.lunghezza = Format(KmGara[row], KmGara[row] > 0 ? "##" : "0") + "," + Format(MetriGara[row], "##0");
    return texts;
}

} // namespace zelvia::Module1
