// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SearchPeriod.h"

#include "core/Conversions.h"
#include "core/Messages.h"

namespace zelvia
{

using namespace PeriodBox;

namespace
{

/// The boxes of one of the two dates, and the messages of its repairs.
struct PeriodEnd {
    Box day;
    Box month;
    Box year;
    const Message& max30;
    const Message& max28;
    const Message& minDay;
    const Message& minMonth;
    const Message& minYear;
};

constexpr PeriodEnd kEnds[] = {
    {GiornoInizio, MeseInizio, AnnoInizio, Messages::kStartMax30, Messages::kStartMax28, Messages::kStartMinDay,
     Messages::kStartMinMonth, Messages::kStartMinYear},
    {GiornoFine, MeseFine, AnnoFine, Messages::kEndMax30, Messages::kEndMax28, Messages::kEndMinDay,
     Messages::kEndMinMonth, Messages::kEndMinYear},
};

constexpr int kFirstYear = 2007;

void Check(const PeriodEnd& end, PeriodEntries& texts, std::vector<PeriodCorrection>& corrections)
{
    const auto number = [&](Box box) { return Val(texts[box]); };
    const auto correct = [&](const Message& message, Box box, TextView value) {
        texts[box] = Text(value);
        corrections.push_back({&message, box, value});
    };
    const double month = number(end.month);
    if ((month == 4 || month == 6 || month == 9 || month == 11) && number(end.day) > 30) {
        correct(end.max30, end.day, "30");
    }
    if (month == 2 && number(end.day) > 28) {
        correct(end.max28, end.day, "28");
    }
    if (number(end.day) < 1 && number(end.month) < 1 && number(end.year) < 1) {
        return;
    }
    if (number(end.day) < 1) {
        correct(end.minDay, end.day, "1");
    }
    if (number(end.month) < 1) {
        correct(end.minMonth, end.month, "1");
    }
    if (number(end.year) < kFirstYear) {
        correct(end.minYear, end.year, "2007");
    }
}

} // namespace

PeriodCheck CheckPeriod(PeriodEntries texts)
{
    PeriodCheck check;
    for (const PeriodEnd& end : kEnds) {
        Check(end, texts, check.corrections);
    }
    const auto number = [&](Box box) { return Val(texts[box]); };
    check.reversed = number(GiornoInizio) >= 1 &&
                     (number(MeseInizio) > number(MeseFine) ||
                      (number(MeseInizio) == number(MeseFine) && number(GiornoInizio) > number(GiornoFine)));
    return check;
}

} // namespace zelvia
