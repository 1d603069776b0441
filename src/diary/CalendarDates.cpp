// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarDates.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"

namespace zelvia::Module1
{
namespace
{

constexpr i16 kRaces = 100;
constexpr int kFirstYear = 2007;

using Field = DateCorrection::Field;

Text MessageAt(TextView what, i16 row, TextView detail)
{
    return Text(what) + PlainText(row) + " : " + Text(detail);
}

void CorrectDay(RaceDate& date, i16 row, std::vector<DateCorrection>& corrections)
{
    constexpr TextView wrong = " ERRORE AL N° "_t;
    const auto cut = [&](int days) {
        const Text last = PlainText(i16(days));
        corrections.push_back({MessageAt(wrong, row, " MAX " + last + " GIORNI "), Field::Day, last});
        date.day = days;
    };
    for (const int shortMonth : {4, 6, 9, 11}) {
        if (date.month == shortMonth && date.day > 30) {
            cut(30);
        }
    }
    const bool leap = RoundTo<i32>(date.year).value() % 4 == 0;
    if (leap && date.month == 2 && date.day > 29) {
        cut(29);
    }
    if (!leap && date.month == 2 && date.day > 28) {
        cut(28);
    }
}

} // namespace

std::vector<DateCorrection> CorrectDate(const RaceDate& date, i16 row, i16 currentYear)
{
    std::vector<DateCorrection> corrections;
    RaceDate corrected = date;
    CorrectDay(corrected, row, corrections);
    if (corrected.day < 1 && corrected.month < 1 && corrected.year < 1) {
        return corrections;
    }
    constexpr TextView missing = " MANCA AL N° "_t;
    if (corrected.day < 1) {
        corrections.push_back({MessageAt(missing, row, "  GIORNO   ")});
    }
    if (corrected.month < 1) {
        corrections.push_back({MessageAt(missing, row, "  MESE   ")});
    }
    if (corrected.year < kFirstYear) {
        const Text year = PlainText(currentYear);
        corrections.push_back({MessageAt(" MODIFICA AL N° "_t, row, "  ANNO " + year + "  "), Field::Year, year});
    }
    return corrections;
}

std::vector<std::pair<i16, i16>> SameDates()
{
    std::vector<std::pair<i16, i16>> pairs;
    for (i16 i = 1; i <= kRaces; i += 1) {
        if (GiornoGara[i] == 0) {
            continue;
        }
        for (i16 j = i + 1; j <= kRaces; j += 1) {
            if (GiornoGara[i] == GiornoGara[j] && MeseGara[i] == MeseGara[j] && AnnoGara[i] == AnnoGara[j]) {
                pairs.emplace_back(i, j);
            }
        }
    }
    return pairs;
}

Text SameDatesMessage(i16 first, i16 second)
{
    return PlainText(GiornoGara[first]) + "-" + PlainText(MeseGara[first]) + "-" + PlainText(AnnoGara[first]) +
           Text("   DATA PRESENTE AL  N° "_t) + PlainText(first) + Text("  E AL N° "_t) + PlainText(second) + "  ";
}

i16 RaceOnDate(i16 day, i16 month, i16 year)
{
    for (i16 i = 1; i <= kRaces; i += 1) {
        if (GiornoGara[i] == day && MeseGara[i] == month && AnnoGara[i] == year) {
            return i;
        }
    }
    return 0;
}

} // namespace zelvia::Module1
