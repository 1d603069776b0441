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

void AzzeraTotali(TotaliRicerca& totali)
{
    TotaliRicerca empty;
    empty.MinutiMedia = totali.MinutiMedia;
    empty.Medie = totali.Medie;
    for (int i = 1; i <= kChartedRuns; ++i) {
        empty.Medie[i] = 0;
    }
    totali = empty;
}

void SommaTempi(TotaliRicerca& totali, TextView tempo)
{
    const auto [ore, minuti, secondi] = NumbersOf<3>(tempo);
    totali.TotOre += i32(ore);
    totali.TotMinuti += minuti;
    totali.TotSecondi += secondi;
}

void SommaMedia(TotaliRicerca& totali, TextView media)
{
    const auto [minuti, secondi] = NumbersOf<2>(media);
    totali.MinutiMedia = minuti;
    totali.Medie[totali.NumCorse] = LocaleSingle(PlainText(minuti) + (secondi <= 9 ? ",0" : ",") + PlainText(secondi));
    totali.TotMediaMinuti += i32(minuti);
    totali.TotMediaSecondi += i32(secondi);
}

void SommaKm(TotaliRicerca& totali)
{
    if (totali.TotMetri >= kPerKm) {
        const i32 interi = Whole(totali.TotMetri, kPerKm);
        totali.TotKm += interi;
        totali.TotMetri -= interi * kPerKm;
    }
}

void TempiTotali(TotaliRicerca& totali)
{
    i16 minuti;
    if (totali.TotSecondi >= kPerMinute) {
        minuti = Whole(totali.TotSecondi, kPerMinute);
        totali.TotSecondi -= minuti * kPerMinute;
    }
    totali.TotMinuti += minuti;
    if (totali.TotMinuti >= kPerMinute) {
        const i16 ore = Whole(totali.TotMinuti, kPerMinute);
        totali.TotMinuti -= ore * kPerMinute;
        totali.TotOre += i32(ore);
    }
}

void MediaTotali(TotaliRicerca& totali)
{
    if (totali.TotMediaMinuti < 1 && totali.TotMediaSecondi < 1) {
        return;
    }
    i32 secondi;
    if (totali.TotMediaMinuti == 0) {
        secondi = Whole(totali.TotMediaSecondi, totali.NumCorse.value());
    } else if (totali.TotMediaMinuti > 0) {
        secondi = Whole(totali.TotMediaMinuti * kPerMinute + totali.TotMediaSecondi, totali.NumCorse.value());
    }
    if (secondi < kPerMinute) {
        totali.TotMediaSecondi = secondi;
        return;
    }
    totali.TotMediaMinuti = Whole(secondi, kPerMinute);
    totali.TotMediaSecondi = secondi - totali.TotMediaMinuti * kPerMinute;
}

Text TestoCorse(const TotaliRicerca& totali)
{
    return " " + PlainText(totali.NumCorse);
}

Text TestoDistanza(const TotaliRicerca& totali)
{
    const Text km = " " + Format(totali.TotKm, "###,###");
    return totali.TotMetri >= 1 ? km + "," + Format(totali.TotMetri, "###") : km;
}

Text TestoTempi(const TotaliRicerca& totali)
{
    return " " + TestoTempo({totali.TotOre, totali.TotMinuti, totali.TotSecondi});
}

Text TestoMedia(const TotaliRicerca& totali)
{
    return " " + PlainText(totali.TotMediaMinuti) + ":" + Format(totali.TotMediaSecondi, "00");
}

} // namespace zelvia
