// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SearchPeriod.h"

#include "core/Conversions.h"

namespace zelvia
{

using namespace CampoPeriodo;

namespace
{

/// The boxes of one of the two dates, and the messages of its repairs.
struct Estremo {
    Campo giorno;
    Campo mese;
    Campo anno;
    TextView max30;
    TextView max28;
    TextView minGiorno;
    TextView minMese;
    TextView minAnno;
};

constexpr Estremo kEstremi[] = {
    {GiornoInizio, MeseInizio, AnnoInizio, "DATA INIZIO  MAX 30 GIORNI                 ",
     "DATA INIZIO  MAX 28 GIORNI                 ", "DATA INIZIO  MIN GIORNO 1                 ",
     "DATA INIZIO  MIN MESE  1               ", "DATA INIZIO  ANNO 2007                 "},
    {GiornoFine, MeseFine, AnnoFine, "DATA FINE  MAX 30 GIORNI                 ",
     "DATA FINE  MAX 28 GIORNI                 ", "DATA FINE  MIN GIORNO 1                 ",
     "DATA FINE  MIN MESE  1                ", "DATA FINE  ANNO 2007                 "},
};

constexpr int kFirstYear = 2007;

void Check(const Estremo& estremo, TestiPeriodo& testi, std::vector<CorrezionePeriodo>& correzioni)
{
    const auto number = [&](Campo campo) { return Val(testi[campo]); };
    const auto correct = [&](TextView messaggio, Campo campo, TextView valore) {
        testi[campo] = Text(valore);
        correzioni.push_back({messaggio, campo, valore});
    };
    const double mese = number(estremo.mese);
    if ((mese == 4 || mese == 6 || mese == 9 || mese == 11) && number(estremo.giorno) > 30) {
        correct(estremo.max30, estremo.giorno, "30");
    }
    if (mese == 2 && number(estremo.giorno) > 28) {
        correct(estremo.max28, estremo.giorno, "28");
    }
    if (number(estremo.giorno) < 1 && number(estremo.mese) < 1 && number(estremo.anno) < 1) {
        return;
    }
    if (number(estremo.giorno) < 1) {
        correct(estremo.minGiorno, estremo.giorno, "1");
    }
    if (number(estremo.mese) < 1) {
        correct(estremo.minMese, estremo.mese, "1");
    }
    if (number(estremo.anno) < kFirstYear) {
        correct(estremo.minAnno, estremo.anno, "2007");
    }
}

} // namespace

ControlloPeriodo ControllaPeriodo(TestiPeriodo testi)
{
    ControlloPeriodo controllo;
    for (const Estremo& estremo : kEstremi) {
        Check(estremo, testi, controllo.correzioni);
    }
    const auto number = [&](Campo campo) { return Val(testi[campo]); };
    controllo.invertito = number(GiornoInizio) >= 1 &&
                          (number(MeseInizio) > number(MeseFine) ||
                           (number(MeseInizio) == number(MeseFine) && number(GiornoInizio) > number(GiornoFine)));
    return controllo;
}

} // namespace zelvia
