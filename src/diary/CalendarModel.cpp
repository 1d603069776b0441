// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarModel.h"

#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/Module1.h"

namespace zelvia::Module1
{

ColonnaGare<i16> NumeroGara;
ColonnaGare<i16> GiornoGara;
ColonnaGare<i16> MeseGara;
ColonnaGare<i16> AnnoGara;
ColonnaGare<Text> Gara;
ColonnaGare<Text> Localita;
ColonnaGare<i16> KmGara;
ColonnaGare<i16> MetriGara;
ColonnaGare<i32> Partecipanti;
ColonnaGare<i32> Risultato;
ColonnaGare<i16> OreGara;
ColonnaGare<i16> MinutiGara;
ColonnaGare<i16> SecondiGara;
ColonnaGare<Text> Categoria;
ColonnaGare<i32> RisultatoCat;

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
