// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RaceTexts.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"

namespace zelvia::Module1
{

TestiGara TestiDellaGara(i16 riga)
{
    constexpr TextView thousands = "###,###";
    TestiGara testi;
    testi.gara = Gara[riga];
    testi.localita = Localita[riga];
    testi.partecipanti = Format(Partecipanti[riga], thousands);
    testi.tempo =
        PlainText(OreGara[riga]) + ":" + Format(MinutiGara[riga], "00") + ":" + Format(SecondiGara[riga], "00");
    testi.risultato = Format(Risultato[riga], thousands);
    testi.categoria = Categoria[riga];
    testi.risultatoCat = Format(RisultatoCat[riga], thousands);
    testi.lunghezza = Format(KmGara[riga], KmGara[riga] > 0 ? "##" : "0") + "," + Format(MetriGara[riga], "##0");
    return testi;
}

} // namespace zelvia::Module1
