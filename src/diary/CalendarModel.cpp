// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarModel.h"

#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/Module1.h"

namespace zelvia::Module1
{

RaceValues<i16> NumeroGara;
RaceValues<i16> GiornoGara;
RaceValues<i16> MeseGara;
RaceValues<i16> AnnoGara;
RaceValues<Text> Gara;
RaceValues<Text> Localita;
RaceValues<i16> KmGara;
RaceValues<i16> MetriGara;
RaceValues<i32> Partecipanti;
RaceValues<i32> Risultato;
RaceValues<i16> OreGara;
RaceValues<i16> MinutiGara;
RaceValues<i16> SecondiGara;
RaceValues<Text> Categoria;
RaceValues<i32> RisultatoCat;

namespace
{

constexpr int kRaces = 100;

Text CalendarFile()
{
    return CartellaDiario + "\\CalendarioGare";
}

/// Hands the fifteen values of every row to `visit`, in the order of the file.
template <typename Visitor>
void VisitCalendar(Visitor&& visit)
{
    for (int row = 1; row <= kRaces; ++row) {
        visit(NumeroGara[row]);
        visit(GiornoGara[row]);
        visit(MeseGara[row]);
        visit(AnnoGara[row]);
        visit(Gara[row]);
        visit(Localita[row]);
        visit(KmGara[row]);
        visit(MetriGara[row]);
        visit(Partecipanti[row]);
        visit(Risultato[row]);
        visit(OreGara[row]);
        visit(MinutiGara[row]);
        visit(SecondiGara[row]);
        visit(Categoria[row]);
        visit(RisultatoCat[row]);
    }
}

} // namespace

void AzzeraCalendario()
{
    Trap(kBareTitle, [] {
        VisitCalendar([](auto& value) { value = {}; });
        for (int row = 1; row <= kRaces; ++row) {
            NumeroGara[row] = row;
        }
    });
}

void LeggiCalendario()
{
    Trap(kBareTitle, [] {
        ValueReader file(CalendarFile());
        VisitCalendar([&](auto& value) { file.Input(value); });
    });
}

void ScriviCalendario()
{
    Trap(kBareTitle, [] {
        ValueWriter file(CalendarFile());
        VisitCalendar([&](const auto& value) { file.Write(value); });
        file.Close();
    });
}

} // namespace zelvia::Module1
