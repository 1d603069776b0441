// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarModel.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/FileForms.h"
#include "diary/Journal.h"
#include "diary/Module1.h"
#include "diary/TimeAndPace.h"

namespace zelvia::Module1
{
namespace
{

Text CalendarFile()
{
    return CartellaDiario + "\\CalendarioGare";
}

/// Hands the values of every row to `visit`, in the order of the file.
template <typename Visitor>
void VisitCalendar(Visitor&& visit)
{
    for (int row = 1; row <= kRaces; ++row) {
        VisitRace(row, visit);
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
        Journal::Instance().Saved(RecordKind::Race);
    });
}

RaceTexts RaceTextsOf(i16 row)
{
    constexpr TextView thousands = "###,###";
    RaceTexts texts;
    texts.name = Gara[row];
    texts.place = Localita[row];
    texts.runners = Format(Partecipanti[row], thousands);
    texts.time = TimeText({OreGara[row], MinutiGara[row], SecondiGara[row]});
    texts.placing = Format(Risultato[row], thousands);
    texts.category = Categoria[row];
    texts.categoryPlacing = Format(RisultatoCat[row], thousands);
    texts.length = Format(KmGara[row], KmGara[row] > 0 ? "##" : "0") + "," + Format(MetriGara[row], "##0");
    return texts;
}

} // namespace zelvia::Module1

namespace zelvia
{

std::vector<ValueKind> CalendarForm()
{
    std::vector<ValueKind> form;
    Module1::VisitCalendar([&](const auto& value) { form.push_back(KindOf(value)); });
    return form;
}

} // namespace zelvia
