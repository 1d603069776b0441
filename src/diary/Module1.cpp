// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Module1.h"

#include "core/Conversions.h"
#include "core/ValueFile.h"
#include "diary/Fields.h"
#include "diary/Journal.h"

#include <utility>

namespace zelvia::Module1
{

BoundedArray<RecordGiorno, 0, 366> Giorni;
CalendarDate DataCorrente;
Session session;

namespace
{

void BlankDay(i16 number)
{
    RecordGiorno& day = Giorni[number];
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
    session = {};
}

void AzzeraAnno()
{
    Trap(kBareTitle, [] {
        CalendarDate date = DateValue("01/01/" + Format(Date().Year(), "0000"));
        for (i16 day = 1; day <= 366; day += 1) {
            Giorni[day].NumGiorno = day;
            Giorni[day].Data = date;
            BlankDay(day);
            date = DateAdd("d", 1, date);
        }
    });
}

void AzzeraRecordGiorno(i16 day)
{
    Trap(kBareTitle, [&] { BlankDay(day); });
}

void SalvaDiario(TextView path)
{
    Trap(kBareTitle, [&] {
        ValueWriter file(path);
        for (int i = 1; i <= 366; ++i) {
            VisitDiaryValues(std::as_const(Giorni[i]),
                             Overloaded{[&](const auto& value) { file.Write(value); },
                                        [&](const Text& /*blank*/, int count) { file.WriteBlanks(count); }});
        }
        file.Close();
        Journal::Instance().SavedDays(path);
    });
}

void CaricaDiario(TextView path)
{
    TrapWith(
        [&] {
            ValueReader file(path);
            for (int i = 1; i <= 366; ++i) {
                VisitDiaryValues(Giorni[i], [&](auto& value) { file.Input(value); });
            }
        },
        [](const ErroreRunTime& error) {
            if (error.Number() != Errore::FileNonTrovato) {
                ReportError("**ERRORE : ", error);
            }
        });
}

} // namespace zelvia::Module1
