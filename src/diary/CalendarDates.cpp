// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarDates.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "diary/CalendarModel.h"

namespace zelvia::Module1
{
namespace
{

constexpr int kFirstYear = 2007;

using Field = DateCorrection::Field;

void CorrectDay(RaceDate& date, i16 row, std::vector<DateCorrection>& corrections)
{
    const auto cut = [&](int days, const Message& message) {
        corrections.push_back({Filled(message, {PlainText(row)}), Field::Day, PlainText(i16(days))});
        date.day = days;
    };
    for (const int shortMonth : {4, 6, 9, 11}) {
        if (date.month == shortMonth && date.day > 30) {
            cut(30, Messages::kRaceMax30);
        }
    }
    const bool leap = RoundTo<i32>(date.year).value() % 4 == 0;
    if (leap && date.month == 2 && date.day > 29) {
        cut(29, Messages::kRaceMax29);
    }
    if (!leap && date.month == 2 && date.day > 28) {
        cut(28, Messages::kRaceMax28);
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
    if (corrected.day < 1) {
        corrections.push_back({Filled(Messages::kRaceWithoutDay, {PlainText(row)})});
    }
    if (corrected.month < 1) {
        corrections.push_back({Filled(Messages::kRaceWithoutMonth, {PlainText(row)})});
    }
    if (corrected.year < kFirstYear) {
        const Text year = PlainText(currentYear);
        corrections.push_back({Filled(Messages::kRaceYear, {PlainText(row), year}), Field::Year, year});
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

MsgRequest SameDatesMessage(i16 first, i16 second)
{
    const Text date =
        PlainText(GiornoGara[first]) + "-" + PlainText(MeseGara[first]) + "-" + PlainText(AnnoGara[first]);
    return Filled(Messages::kRacesOnOneDay, {date, PlainText(first), PlainText(second)});
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
