// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/DayProposal.h"

#include "core/Conversions.h"
#include "core/Tr.h"
#include "diary/SelectionLists.h"
#include "diary/TimeAndPace.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kMinute = 60;
constexpr int kHour = 3600;
constexpr int kDay = 24 * kHour;
constexpr int kLastEnd = kDay + kHour - 1; ///< 24:59:59, the latest that the page takes.

/// By how many seconds the computer's zone was ahead of UTC at that moment.
int ZoneOffset(std::int64_t moment)
{
    const auto time = static_cast<std::time_t>(moment);
    std::tm local{};
    return localtime_r(&time, &local) == nullptr ? 0 : static_cast<int>(local.tm_gmtoff);
}

void TakeStart(DayProposal& proposal, const Activity& activity, const ProposalRules& rules)
{
    int offset = 0;
    if (rules.offset) {
        proposal.source = ClockSource::Given;
        offset = *rules.offset;
    } else if (activity.offset) {
        proposal.source = ClockSource::File;
        offset = *activity.offset;
    } else {
        offset = ZoneOffset(activity.start);
    }
    const std::chrono::sys_seconds local{std::chrono::seconds(activity.start + offset)};
    const auto day = std::chrono::floor<std::chrono::days>(local);
    const std::chrono::year_month_day date(day);
    proposal.date = CalendarDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                                 static_cast<unsigned>(date.day()));
    proposal.start = static_cast<int>((local - day).count());
}

/// The end, as far as the page can show it.
void TakeEnd(DayProposal& proposal, RunClock clock)
{
    const int taken = clock == RunClock::Elapsed ? proposal.elapsed : proposal.moving;
    if (taken > kLastEnd) {
        proposal.start = 0;
        proposal.remarks.push_back(Tools::Tr("dura più di un giorno: gli orari non si possono scrivere"));
        return;
    }
    if (proposal.start + taken > kLastEnd) {
        proposal.start = kLastEnd - taken;
        proposal.remarks.push_back(
            Tools::Tr("va oltre l'una di notte: l'inizio è anticipato perché il tempo sia giusto"));
    }
    proposal.end = proposal.start + taken;
}

void TakeDistance(DayProposal& proposal, double metres)
{
    constexpr int kilometre = 1000;
    constexpr int farthest = 500 * kilometre + kilometre - 1; // What the page takes.
    int whole = static_cast<int>(std::lround(metres));
    if (whole > farthest) {
        proposal.remarks.push_back(Tools::Tr("la distanza è più di quanto il diario può tenere"));
        whole = 0;
    }
    proposal.km = whole / kilometre;
    proposal.metres = whole % kilometre;
}

Text SplitLine(const KilometreTime& split)
{
    constexpr TextView two = "00";
    return Format(i32(split.km), two) + "      " + Format(i32(split.seconds / kHour), two) + ":" +
           Format(i32(split.seconds / kMinute % kMinute), two) + ":" + Format(i32(split.seconds % kMinute), two);
}

/// Hours, minutes and seconds.
std::array<int, 3> ClockParts(int seconds)
{
    return {seconds / kHour, seconds / kMinute % kMinute, seconds % kMinute};
}

/// What a day of any other sport is called in the list of types.
TextView TypeOf(const Activity& activity)
{
    static constexpr std::array<std::pair<std::string_view, TextView>, 8> names = {{{"cycling", "Bicicletta"},
                                                                                    {"biking", "Bicicletta"},
                                                                                    {"swimming", "Nuoto"},
                                                                                    {"walking", "Camminata"},
                                                                                    {"hiking", "Escursione"},
                                                                                    {"skiing", "Sci"},
                                                                                    {"rowing", "Canottaggio"},
                                                                                    {"transition", "Cambio"}}};
    for (const auto& [sport, name] : names) {
        if (activity.sport == sport) {
            return name;
        }
    }
    return FirstEntries(SelectionList::Tipo).front();
}

} // namespace

bool IsRun(const Activity& activity)
{
    // "9" is how some GPX files number it.
    constexpr std::array<std::string_view, 3> words = {"run", "jog", "corsa"};
    return activity.sport.empty() || activity.sport == "9" ||
           std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return activity.sport.find(word) != std::string::npos; });
}

DayProposal ProposeDay(const Activity& activity, const ProposalRules& rules)
{
    return ProposeDay(activity, rules, KilometreTimes(activity, rules.clock));
}

DayProposal ProposeDay(const Activity& activity, const ProposalRules& rules, std::vector<KilometreTime> splits)
{
    DayProposal proposal;
    proposal.elapsed = static_cast<int>(std::lround(activity.elapsed));
    proposal.moving = static_cast<int>(std::lround(activity.moving));
    TakeStart(proposal, activity, rules);
    TakeEnd(proposal, rules.clock);
    TakeDistance(proposal, activity.metres);
    proposal.splits = std::move(splits);
    proposal.type = TypeOf(activity);
    proposal.season = SeasonOf(proposal.date);
    return proposal;
}

TextView SeasonOf(CalendarDate date)
{
    const auto seasons = FirstEntries(SelectionList::Stagione); // From spring on.
    constexpr int hundred = 100;
    const int place = date.Month().value() * hundred + date.Day().value();
    constexpr std::array<int, 4> begins = {321, 621, 923, 1221};
    std::size_t season = begins.size() - 1;
    for (std::size_t i = 0; i < begins.size(); ++i) {
        season = place >= begins[i] ? i : season;
    }
    return seasons[season];
}

int StartOf(const RecordGiorno& day)
{
    return (day.OraInizio.value() * kMinute + day.MinutiInizio.value()) * kMinute + day.SecondiInizio.value();
}

int EndOf(const RecordGiorno& day)
{
    return (day.OraFine.value() * kMinute + day.MinutiFine.value()) * kMinute + day.SecondiFine.value();
}

bool HoldsRun(const RecordGiorno& day)
{
    const auto given = [](const auto&... numbers) { return ((numbers != 0) || ...); };
    return CampoNonVuoto(day.Percorso) || CampoNonVuoto(day.Tipo) || day.ListaKm != decltype(day.ListaKm){} ||
           given(day.Km, day.Metri, day.OraInizio, day.MinutiInizio, day.SecondiInizio, day.OraFine, day.MinutiFine,
                 day.SecondiFine);
}

bool HoldsSame(const RecordGiorno& day, const DayProposal& proposal)
{
    constexpr int kilometre = 1000;
    constexpr int least = 50; // Metres by which two files of the same outing differ.
    constexpr int share = 100;
    const int metres = proposal.km * kilometre + proposal.metres;
    const int held = day.Km.value() * kilometre + day.Metri.value();
    return std::abs(StartOf(day) - proposal.start) <= kMinute &&
           std::abs(held - metres) <= std::max(least, metres / share);
}

void PutInto(RecordGiorno& day, const DayProposal& proposal)
{
    day.Km = proposal.km;
    day.Metri = proposal.metres;
    PutTimes(day, proposal.start, proposal.end);
    PutSplits(day, proposal.splits);
    const auto put = [](Text& field, const Text& proposed) { field = proposed.empty() ? field : proposed; };
    put(day.Tipo, proposal.type);
    put(day.Percorso, proposal.route);
    put(day.Stagione, proposal.season);
}

void PutSplits(RecordGiorno& day, const std::vector<KilometreTime>& splits)
{
    day.ListaKm.Clear();
    int line = 0;
    for (const KilometreTime& split : splits) {
        day.ListaKm[line++] = SplitLine(split);
    }
}

void PutTimes(RecordGiorno& day, int start, int end)
{
    const auto [startHour, startMinute, startSecond] = ClockParts(start);
    const auto [endHour, endMinute, endSecond] = ClockParts(end);
    day.OraInizio = startHour;
    day.MinutiInizio = startMinute;
    day.SecondiInizio = startSecond;
    day.OraFine = endHour;
    day.MinutiFine = endMinute;
    day.SecondiFine = endSecond;
    day.TempoImpiegato = "0:00:00";
    day.MediaKm = "0:00";
    if (end <= start) {
        return;
    }
    const ClockTime time = ElapsedTime({startHour, startMinute, startSecond}, {endHour, endMinute, endSecond});
    day.TempoImpiegato = TimeText(time);
    if (day.Km != 0 || day.Metri != 0) {
        const Text distance = Format(i32(day.Km), "0") + "," + Format(i32(day.Metri), "000");
        // None for a pace that the page can't show.
        day.MediaKm =
            TrapValueWith(
                std::optional<Text>(), [&] { return AverageText(distance, time); }, [](const ErroreRunTime&) {})
                .value_or(day.MediaKm);
    }
}

} // namespace zelvia
