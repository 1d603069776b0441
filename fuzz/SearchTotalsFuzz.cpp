// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sums of a search: a line with a time taken and one with an average for each run.
#include "Harness.h"
#include "Reference.h"
#include "core/Conversions.h"
#include "diary/SearchTotals.h"

#include <cmath>
#include <cstdlib>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

constexpr std::size_t kRuns = 8;

/// The numbers between the colons, the last one's text being the rest; none when a piece has over three characters. No
/// number of three characters overflows a short.
std::optional<std::vector<int>> Pieces(const Text& text, std::size_t count)
{
    std::vector<int> numbers(count);
    Text piece;
    std::size_t at = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const bool ends = i == text.size() || (text[i] == ':' && at + 1 < count);
        if (!ends) {
            piece += text[i];
            continue;
        }
        if (piece.size() > 3) {
            return std::nullopt;
        }
        numbers[at++] = PlainShort(piece).value();
        piece.clear();
    }
    return numbers;
}

/// The sums in plain integers.
struct Sums {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    int averageMinutes = 0;
    int averageSeconds = 0;

    bool operator==(const Sums&) const = default;
};

Sums SumsOf(const SearchTotals& totals)
{
    return {totals.TotOre.value(), totals.TotMinuti.value(), totals.TotSecondi.value(), totals.TotMediaMinuti.value(),
            totals.TotMediaSecondi.value()};
}

void AddTime(SearchTotals& totals, Sums& sums, const Text& time)
{
    const auto pieces = Pieces(time, 3);
    const int error = RaisedBy([&] { SommaTempi(totals, time); });
    Require(error == (pieces ? 0 : Errore::ArgomentoNonValido), "the error of a time");
    if (pieces) {
        sums.hours += pieces->at(0);
        sums.minutes += pieces->at(1);
        sums.seconds += pieces->at(2);
    }
    Require(SumsOf(totals) == sums, "a time is added, or nothing");
}

void AddAverage(SearchTotals& totals, Sums& sums, const Text& average)
{
    const auto pieces = Pieces(average, 2);
    const int error = RaisedBy([&] { SommaMedia(totals, average); });
    if (!pieces) {
        Require(error == Errore::ArgomentoNonValido, "the error of an average too long");
        Require(SumsOf(totals) == sums, "an average too long adds nothing");
        return;
    }
    const int minutes = pieces->at(0);
    const int seconds = pieces->at(1);
    Require(totals.MinutiMedia == minutes, "the minutes read last");
    if (seconds < 0) {
        // ",0-5" is not a number, and the sums stay.
        Require(error == Errore::TipoNonCorrispondente && SumsOf(totals) == sums, "seconds below 0 are no number");
        return;
    }
    Require(error == 0, "an average is added");
    const std::string number = std::to_string(minutes) + (seconds <= 9 ? ".0" : ".") + std::to_string(seconds);
    Require(totals.Medie[totals.NumCorse] == std::strtof(number.c_str(), nullptr), "the number of an average");
    sums.averageMinutes += minutes;
    sums.averageSeconds += seconds;
    Require(SumsOf(totals) == sums, "an average is added to the sums");
}

void CheckTotalTime(SearchTotals& totals, Sums& sums)
{
    TempiTotali(totals);
    const int carried = sums.seconds >= 60 ? sums.seconds / 60 : 0;
    sums.seconds -= carried * 60;
    sums.minutes += carried;
    const int hours = sums.minutes >= 60 ? sums.minutes / 60 : 0;
    sums.minutes -= hours * 60;
    sums.hours += hours;
    Require(SumsOf(totals) == sums, "the time in all");
    Require(sums.seconds < 60 && sums.minutes < 60, "what is carried over");
}

void CheckMean(SearchTotals& totals, Sums& sums)
{
    MediaTotali(totals);
    if (sums.averageMinutes >= 1 || sums.averageSeconds >= 1) {
        const int all = sums.averageMinutes * 60 + sums.averageSeconds;
        const int mean = sums.averageMinutes < 0 ? 0 : static_cast<int>(std::trunc(double(all) / kRuns));
        sums.averageSeconds = mean < 60 ? mean : mean % 60;
        sums.averageMinutes = mean < 60 ? sums.averageMinutes : mean / 60;
    }
    Require(SumsOf(totals) == sums, "the mean of the averages");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static SearchTotals totals;
    ClearTotals(totals);
    Sums sums;
    const std::vector<Text> lines = InputLines(data, size, 2 * kRuns);
    for (std::size_t run = 0; run < kRuns; ++run) {
        totals.NumCorse += 1;
        AddTime(totals, sums, lines[2 * run]);
        AddAverage(totals, sums, lines[2 * run + 1]);
    }
    CheckTotalTime(totals, sums);
    CheckMean(totals, sums);
    Require(RunsText(totals) == " 8", "the number of the runs");
    Require(TimesText(totals).starts_with(" " + std::to_string(sums.hours) + ":"), "the time as text");
    Require(MeanText(totals).starts_with(" " + std::to_string(sums.averageMinutes) + ":"), "the average as text");
    return 0;
}
