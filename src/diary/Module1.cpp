// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Module1.h"

#include "core/Conversions.h"

namespace zelvia::Module1
{

BoundedArray<RecordGiorno, 0, 366> Giorni;
CalendarDate DataCorrente;
i16 GiornoCorrente;
i16 FileModificato;
Text CartellaDiario;
Text NomeTabellaAttiva;
Text NomeTabellaAperta;
i16 FlagTabellaSalvata;
i16 IndiceTabella;
Text PercorsoCorrente;

namespace
{

void BlankDay(i16 giorno)
{
    RecordGiorno& day = Giorni[giorno];
    RecordGiorno blank;
    blank.NumGiorno = day.NumGiorno;
    blank.Data = day.Data;
    blank.Note[0] = day.Note[0];
    day = blank;
}

} // namespace

void AzzeraStato()
{
    DataCorrente = CalendarDate();
    GiornoCorrente = 0;
    FileModificato = 0;
    CartellaDiario.clear();
    NomeTabellaAttiva.clear();
    NomeTabellaAperta.clear();
    FlagTabellaSalvata = 0;
    IndiceTabella = 0;
    PercorsoCorrente.clear();
}

void AzzeraAnno()
{
    Trap(kBareTitle, [] {
        CalendarDate date = DateValue("01/01/" + Format(Date().Year(), "0000"));
        for (i16 giorno = 1; giorno <= 366; giorno += 1) {
            Giorni[giorno].NumGiorno = giorno;
            Giorni[giorno].Data = date;
            BlankDay(giorno);
            date = DateAdd("d", 1, date);
        }
    });
}

void AzzeraRecordGiorno(i16 giorno)
{
    Trap(kBareTitle, [&] { BlankDay(giorno); });
}

} // namespace zelvia::Module1
