// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableWalk.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"

#include <tuple>

namespace zelvia
{
namespace
{

struct DayTime {
    i16 hours;
    i16 minutes;
    i16 seconds;
};

/// The time that a text holds; none without two separators.
DayTime TimeOf(TextView text)
{
    constexpr TextView separators = ".:";
    const auto first = text.find_first_of(separators);
    const auto second = first == TextView::npos ? first : text.find_first_of(separators, first + 1);
    if (second == TextView::npos) {
        return {};
    }
    return {Parsed<i16>(text.substr(0, first)), Parsed<i16>(text.substr(first + 1, second - first - 1)),
            Parsed<i16>(text.substr(second + 1))};
}

struct DayAverage {
    i16 minutes;
    i16 seconds;
};

DayAverage AverageOf(TextView text)
{
    const auto separator = text.find_first_of(",:");
    if (separator == TextView::npos) {
        return {};
    }
    return {Parsed<i16>(text.substr(0, separator)), Parsed<i16>(text.substr(separator + 1))};
}

/// A demand of the row against what the day holds.
struct Demand {
    bool rowEmpty;
    bool dayEmpty;
    bool failed; ///< Counts only when the row is not empty.
};

Demand Distance(const RecordGiorno& day, const PlanRow& row)
{
    return {row.km == 0 && row.metres == 0, day.Km == 0 && day.Metri == 0,
            std::tie(row.km, row.metres) > std::tie(day.Km, day.Metri)};
}

Demand Time(const RecordGiorno& day, const PlanRow& row)
{
    const DayTime run = TimeOf(day.TempoImpiegato);
    return {row.hours == 0 && row.minutes == 0 && row.seconds == 0,
            run.hours == 0 && run.minutes == 0 && run.seconds == 0,
            std::tie(row.hours, row.minutes, row.seconds) > std::tie(run.hours, run.minutes, run.seconds)};
}

Demand Average(const RecordGiorno& day, const PlanRow& row)
{
    const DayAverage run = AverageOf(day.MediaKm);
    const bool none = run.minutes == 0 && run.seconds == 0;
    return {row.averageMinutes == 0 && row.averageSeconds == 0, none,
            none || std::tie(row.averageMinutes, row.averageSeconds) < std::tie(run.minutes, run.seconds)};
}

Demand SameClass(const Text& day, const Text& row)
{
    return {!CampoNonVuoto(row), !CampoNonVuoto(day), !SameText(Trim(day), Trim(row))};
}

Demand Repetitions(const RecordGiorno& day, const PlanRow& row)
{
    const bool tooLittle = row.repetitions > day.Ripetizioni || row.repetitionMetres > day.RipetizioniDistanza;
    const bool tooSlow =
        std::tie(row.repetitionMinutes, row.repetitionSeconds) < std::tie(day.RipetizioniQuante, day.RipetizioniTempi);
    return {row.repetitions == 0, day.Ripetizioni == 0, row.repetitions > 0 && (tooLittle || tooSlow)};
}

} // namespace

PlanRow PlanRowAt(i16 row)
{
    using namespace Module1;
    return {TabKm[row],        TabMetri[row],       TabOre[row],           TabMinuti[row],
            TabSecondi[row],   TabMediaMinuti[row], TabMediaSecondi[row],  TabAndatura[row],
            TabFondo[row],     TabRipetVolte[row],  TabRipetDistanza[row], TabRipetQuante[row],
            TabRipetTempi[row]};
}

i16 FailedDemands(const RecordGiorno& day, const PlanRow& row)
{
    i16 failed = 0;
    bool rowEmpty = true;
    bool dayEmpty = true;
    for (const Demand& demand :
         {Distance(day, row), Time(day, row), Average(day, row), SameClass(day.Modo, row.paceClass),
          SameClass(day.Fondo, row.terrain), Repetitions(day, row)}) {
        rowEmpty = rowEmpty && demand.rowEmpty;
        dayEmpty = dayEmpty && demand.dayEmpty;
        if (!demand.rowEmpty && demand.failed) {
            failed += 1;
        }
    }
    if (rowEmpty) {
        return dayEmpty ? 0 : 1;
    }
    return failed;
}

namespace Module1
{

void ControlloAllenamento(i16 day, i16 row, i16& result)
{
    result = TrapValue("ControlloAllenamento - ERRORE : ", result,
                       [&] { return FailedDemands(Giorni[day], PlanRowAt(row)); });
}

WalkResult WalkTable()
{
    constexpr int allBehind = 32;
    IndiceTabella = 1;
    if (DataCorrente < TabDataInizio) {
        return {WalkResult::State::BeforeStart, 0};
    }
    i16 result = 0;
    for (i16 day = TabDataInizio.DayOfYear(); day <= GiornoCorrente; day += 1) {
        if (Giorni[day].Data < TabDataInizio) {
            continue;
        }
        if (IndiceTabella >= allBehind) {
            IndiceTabella = 1;
            return {WalkResult::State::Finished, 0};
        }
        ControlloAllenamento(day, IndiceTabella, result);
        if (result == 0) {
            IndiceTabella += 1;
        }
    }
    return {WalkResult::State::UnderWay, result != 0 ? IndiceTabella : IndiceTabella - 1};
}

} // namespace Module1
} // namespace zelvia
