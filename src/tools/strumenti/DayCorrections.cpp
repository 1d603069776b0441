// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/DayCorrections.h"

#include "tools/exchange/DayColumns.h"
#include "tools/watch/DayProposal.h"

namespace zelvia
{

void PutInto(RecordGiorno& day, const DayCorrections& corrections)
{
    const auto put = [](auto& field, const auto& said) {
        if (said) {
            field = *said;
        }
    };
    put(day.Km, corrections.km);
    put(day.Metri, corrections.metres);
    put(day.Percorso, corrections.route);
    put(day.Tipo, corrections.type);
    put(day.Stagione, corrections.season);
    if (corrections.splits) {
        PutSplits(day, *corrections.splits);
    }
    if (corrections.km || corrections.metres || corrections.start || corrections.end) {
        PutTimes(day, corrections.start.value_or(StartOf(day)), corrections.end.value_or(EndOf(day)));
    }
}

std::vector<std::string> LostFields(const RecordGiorno& day, const RecordGiorno& result)
{
    const RecordGiorno blank;
    std::vector<std::string> lost;
    for (const DayColumnRow& row : DayColumns()) {
        const std::string before = CellOf(day, row.column);
        if (row.column != DayColumn::Date && before != CellOf(blank, row.column) &&
            before != CellOf(result, row.column)) {
            lost.emplace_back(row.label);
        }
    }
    if (day.ListaKm != blank.ListaKm && day.ListaKm != result.ListaKm) {
        lost.emplace_back("Tempi Km");
    }
    return lost;
}

} // namespace zelvia
