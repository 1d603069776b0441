// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SearchTotals.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/TimeAndPace.h"

#include <array>
#include <cstdint>

namespace zelvia
{
namespace
{

constexpr int kPerMinute = 60; ///< Seconds, and minutes to the hour.
constexpr int kPerKm = 1000;   ///< Metres.

/// The first N - 1 pieces of a text divided by colons, and the rest as the last, each as a number.
/// Raises error 5 when a piece is longer than three characters.
template <std::size_t N>
std::array<i16, N> NumbersOf(TextView text)
{
    constexpr std::size_t longest = 3;
    std::array<TextView, N> pieces;
    for (std::size_t i = 0; i < N; ++i) {
        const auto colon = i + 1 < N ? text.find(':') : TextView::npos;
        pieces[i] = text.substr(0, colon);
        text = colon == TextView::npos ? TextView() : text.substr(colon + 1);
        if (pieces[i].size() > longest) {
            throw ErroreRunTime(Errore::ArgomentoNonValido);
        }
    }
    std::array<i16, N> numbers;
    for (std::size_t i = 0; i < N; ++i) {
        numbers[i] = Parsed<i16>(pieces[i]);
    }
    return numbers;
}

template <typename Integer>
Integer Whole(Integer total, int unit)
{
    return Integer(total.value() / unit);
}

} // namespace

void ClearTotals(SearchTotals& totals)
{
    SearchTotals empty;
    empty.MinutiMedia = totals.MinutiMedia;
    empty.Medie = totals.Medie;
    for (int i = 1; i <= kChartedRuns; ++i) {
        empty.Medie[i] = 0;
    }
    totals = empty;
}

void SommaTempi(SearchTotals& totals, TextView time)
{
    const auto [hours, minutes, seconds] = NumbersOf<3>(time);
    totals.TotOre += i32(hours);
    totals.TotMinuti += minutes;
    totals.TotSecondi += seconds;
}

void SommaMedia(SearchTotals& totals, TextView average)
{
    const auto [minutes, seconds] = NumbersOf<2>(average);
    totals.MinutiMedia = minutes;
    totals.Medie[totals.NumCorse] = LocaleSingle(PlainText(minutes) + (seconds <= 9 ? ",0" : ",") + PlainText(seconds));
    totals.TotMediaMinuti += i32(minutes);
    totals.TotMediaSecondi += i32(seconds);
}

void SommaKm(SearchTotals& totals)
{
    if (totals.TotMetri >= kPerKm) {
        const i32 whole = Whole(totals.TotMetri, kPerKm);
        totals.TotKm += whole;
        totals.TotMetri -= whole * kPerKm;
    }
}

void TempiTotali(SearchTotals& totals)
{
    i16 minutes;
    if (totals.TotSecondi >= kPerMinute) {
        minutes = Whole(totals.TotSecondi, kPerMinute);
        totals.TotSecondi -= minutes * kPerMinute;
    }
    totals.TotMinuti += minutes;
    if (totals.TotMinuti >= kPerMinute) {
        const i16 hours = Whole(totals.TotMinuti, kPerMinute);
        totals.TotMinuti -= hours * kPerMinute;
        totals.TotOre += i32(hours);
    }
}

void MediaTotali(SearchTotals& totals)
{
    if (totals.TotMediaMinuti < 1 && totals.TotMediaSecondi < 1) {
        return;
    }
    i32 seconds;
    if (totals.TotMediaMinuti == 0) {
        seconds = Whole(totals.TotMediaSecondi, totals.NumCorse.value());
    } else if (totals.TotMediaMinuti > 0) {
        seconds = Whole(totals.TotMediaMinuti * kPerMinute + totals.TotMediaSecondi, totals.NumCorse.value());
    }
    if (seconds < kPerMinute) {
        totals.TotMediaSecondi = seconds;
        return;
    }
    totals.TotMediaMinuti = Whole(seconds, kPerMinute);
    totals.TotMediaSecondi = seconds - totals.TotMediaMinuti * kPerMinute;
}

Text RunsText(const SearchTotals& totals)
{
    return " " + PlainText(totals.NumCorse);
}

Text DistanceText(const SearchTotals& totals)
{
    const Text km = " " + Format(totals.TotKm, "###,###");
    return totals.TotMetri >= 1 ? km + "," + Format(totals.TotMetri, "###") : km;
}

Text TimesText(const SearchTotals& totals)
{
    return " " + TimeText({totals.TotOre, totals.TotMinuti, totals.TotSecondi});
}

Text MeanText(const SearchTotals& totals)
{
    return " " + PlainText(totals.TotMediaMinuti) + ":" + Format(totals.TotMediaSecondi, "00");
}

} // namespace zelvia
