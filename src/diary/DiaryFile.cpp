// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFile.h"

#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/Fields.h"
#include "diary/Module1.h"

namespace zelvia::Module1
{

void SalvaDiario(TextView path)
{
    Trap(kBareTitle, [&] {
        ValueWriter file(path);
        for (int i = 1; i <= 366; ++i) {
            VisitDiaryValues(Giorni[i], [&](const auto& value) { file.Write(value); });
        }
        file.Close();
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
