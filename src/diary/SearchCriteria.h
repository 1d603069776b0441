// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

#include <variant>

namespace zelvia
{

/// The conditions that a run must meet. A date whose day is 0, an empty text and a number of 0 set no condition.
struct SearchCriteria {
    i16 GiornoInizio;
    i16 MeseInizio;
    i16 AnnoInizio;
    i16 GiornoFine;
    i16 MeseFine;
    i16 AnnoFine;
    Text CercaPercorso;
    Text CercaLunghezza;
    Text CercaKm; ///< As the statistic of distances writes it.
    Text CercaAndatura;
    Text CercaFondo;
    Text CercaTipo;
    Text CercaStagione;
    Text CercaMeteo;
    Text CercaTemperatura;
    i16 CercaCorridori;
    i16 CercaPeso;
    Text CercaRipetizioni; ///< As the statistic of repetitions writes them.
};

/// The condition on one field: a text or a number.
using Criterion = std::variant<Text SearchCriteria::*, i16 SearchCriteria::*>;

} // namespace zelvia
