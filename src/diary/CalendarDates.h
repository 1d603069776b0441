// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <utility>
#include <vector>

/// The rules of the dates of the race calendar.
namespace zelvia::Module1
{

/// The date of a row as its boxes give it, 0 for an empty box.
struct DataGara {
    double giorno = 0;
    double mese = 0;
    double anno = 0;
};

/// What a date gives cause to say, and what then becomes of a box of it.
struct CorrezioneData {
    enum class Campo { Nessuno, Giorno, Anno };

    Text messaggio;
    Campo campo = Campo::Nessuno;
    Text valore = {};

    friend bool operator==(const CorrezioneData&, const CorrezioneData&) = default;
};

/// The corrections of the date at row `numero`, in the order in which they are told. A year below 2007 gives way to
/// `annoCorrente`. A year that 4 divides has a 29 February, no other rule of leap years applies; an empty one counts
/// among them.
std::vector<CorrezioneData> CorreggiData(const DataGara& data, i16 numero, i16 annoCorrente);

/// The pairs of rows of the calendar that carry the same date, the earlier row of each first.
std::vector<std::pair<i16, i16>> DateDoppie();

/// What is said of such a pair.
Text MessaggioDateDoppie(i16 prima, i16 seconda);

/// The first row of the calendar with a race on a date, 0 for none.
i16 GaraDelGiorno(i16 giorno, i16 mese, i16 anno);

} // namespace zelvia::Module1
