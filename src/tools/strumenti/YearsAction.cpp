// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"
#include "core/Tr.h"
#include "diary/CategoryTexts.h"
#include "diary/Module1.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Actions.h"
#include "tools/years/DiaryYear.h"

namespace zelvia
{
namespace
{

/// Metres as kilometres, 7.500.
std::string Kilometres(long metres)
{
    const std::string rest = std::to_string(metres % 1000);
    return std::to_string(metres / 1000) + "." + std::string(3 - rest.size(), '0') + rest;
}

std::vector<std::string> RowOf(const std::string& diary)
{
    int runs = 0;
    int races = 0;
    long metres = 0;
    for (int i = 1; i <= 366; ++i) {
        const RecordGiorno& day = Module1::Giorni[i];
        runs += CampoNonVuoto(day.Tipo) ? 1 : 0;
        races += SameText(Trim(day.Tipo), "Gara") ? 1 : 0;
        metres += day.Km > 0 ? day.Km.value() * 1000L : 0;
        metres += day.Metri > 0 ? day.Metri.value() : 0;
    }
    return {diary, std::to_string(YearOf(Module1::Giorni)), std::to_string(runs), Kilometres(metres),
            std::to_string(races)};
}

} // namespace

int RunYears(Context& context, Arguments& arguments)
{
    arguments.TakeWords(0, 0);
    Table table{{{"diary", Tools::Mark("Diario")},
                 {"year", Tools::Mark("Anno"), true},
                 {"runs", Tools::Mark("Uscite"), true},
                 {"km", Tools::Mark("Km"), true},
                 {"races", Tools::Mark("Gare"), true}},
                {}};
    int status = context.TellLink() ? kNotDone : kDone;
    for (const std::string& diary : context.Diaries()) {
        try {
            context.Load(diary);
            table.rows.push_back(RowOf(diary));
        } catch (const FileFailure& failure) {
            context.Err() << failure.what() << "\n";
            status = kNotDone;
        }
    }
    context.Print(table);
    return status;
}

} // namespace zelvia
