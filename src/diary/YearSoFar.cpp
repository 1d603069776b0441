// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/YearSoFar.h"

#include "core/Conversions.h"
#include "diary/Module1.h"

namespace zelvia
{

using namespace Module1;

void CountYearSoFar()
{
    session.UltimoPeso = 0;
    session.KmAnno = 0;
    session.GiorniCorseAnno = session.GareAnno = 0;
    i32 metres = 0;
    for (i16 i = 1; i <= session.GiornoCorrente; i += 1) {
        const RecordGiorno& day = Giorni[i];
        if (day.Peso > 0) {
            session.UltimoPeso = day.Peso;
        }
        if (day.Km > 0) {
            session.KmAnno += day.Km;
        }
        if (day.Metri > 0) {
            metres += day.Metri;
        }
        if (SameText(Trim(day.Tipo), "Gara")) {
            session.GareAnno += 1;
        } else if (CampoNonVuoto(day.Tipo)) {
            session.GiorniCorseAnno += 1;
        }
    }
    session.KmAnno += metres.value() / 1000;
}

} // namespace zelvia
