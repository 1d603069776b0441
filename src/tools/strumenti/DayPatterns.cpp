// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/DayPatterns.h"

#include "core/Conversions.h"
#include "core/Text.h"
#include "core/Tr.h"
#include "tools/strumenti/DayStarts.h"

#include <type_traits>
#include <utility>

namespace zelvia
{

std::vector<LinePattern> DayPatterns()
{
    std::vector<LinePattern> patterns;
    RecordGiorno blank;
    ForEachField([&](const auto& field) {
        NumberRange range;
        if constexpr (requires { field.range; }) {
            range = field.range;
        }
        if constexpr (std::is_same_v<decltype(field), const SlotField&>) {
            range = {1, kDaysOfDiary};
        }
        int line = 0;
        auto add = [&](const auto& value) {
            LinePattern pattern;
            pattern.kind = KindOf(value);
            pattern.field = field.label.empty() ? Tools::Tr("Numero del giorno") : ToUtf8(field.label);
            if (field.kLines > 1) {
                pattern.field = Tools::Tr("%1, riga %2", pattern.field, ++line);
            }
            pattern.range = range;
            if constexpr (std::is_same_v<decltype(value), const Text&>) {
                pattern.blank = "\"\"";
            } else if constexpr (!std::is_same_v<decltype(value), const CalendarDate&>) {
                pattern.blank = PlainText(value);
            }
            patterns.push_back(std::move(pattern));
        };
        auto visit = Overloaded{[&](const auto& value) { add(value); },
                                [&](const Text& /*blank*/, int count) {
                                    for (int i = 0; i < count; ++i) {
                                        add(Text());
                                    }
                                }};
        field.Visit(std::as_const(blank), visit);
    });
    return patterns;
}

} // namespace zelvia
