// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/races/RaceColumns.h"

#include "core/Conversions.h"

#include <concepts>

namespace zelvia::CalendarGrid
{

Text RaceText(int column, int race)
{
    if (column <= Anno && !(Module1::GiornoGara[race] > 0)) {
        return {};
    }
    const GridColumn& shown = kRaceColumns[static_cast<std::size_t>(column)];
    return CellText(shown.cell(race), shown.format);
}

bool RaceDiffers(int column, int race, TextView text)
{
    const GridColumn& shown = kRaceColumns[static_cast<std::size_t>(column)];
    return std::visit(
        [&]<typename Value>(const Value* value) {
            if constexpr (std::same_as<Value, Text>) {
                return !SameText(*value, text);
            } else {
                return CellNumber(text, shown.format) != static_cast<double>(value->value());
            }
        },
        shown.cell(race));
}

} // namespace zelvia::CalendarGrid
