// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"

#include <string>
#include <vector>

namespace zelvia
{

/// What fills a day of a calendar. Texts are UTF-8.
struct CalendarEvent {
    std::string uid; ///< The same for the same event in every file.
    CalendarDate date;
    std::string summary;
    std::string place;
    std::string description;
    std::string category;
};

/// An iCalendar file (RFC 5545). `stamp` is when it was made: 20261122T171500Z.
std::string ICalendar(const std::vector<CalendarEvent>& events, const std::string& stamp);

/// The races of the calendar in memory, and the table in memory, a row a day from its start on.
std::vector<CalendarEvent> RaceEvents();
std::vector<CalendarEvent> PlanEvents(const std::string& tableName);

} // namespace zelvia
