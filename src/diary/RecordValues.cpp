// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RecordValues.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/CalendarModel.h"
#include "diary/Fields.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace zelvia
{
namespace
{

using namespace Module1;

int LastOf(RecordKind kind)
{
    switch (kind) {
    case RecordKind::Day: return 366;
    case RecordKind::List: return static_cast<int>(kAllLists.size());
    case RecordKind::Route: return PerRoute<Text>::kLast;
    case RecordKind::Race: return RaceValues<Text>::kLast;
    }
    return 0;
}

template <typename Visitor>
void VisitRecord(RecordKey key, Visitor&& visit)
{
    if (!IsRecord(key)) {
        throw ErroreRunTime(Errore::Indice);
    }
    switch (key.kind) {
    case RecordKind::Day: VisitDiaryValues(Giorni[key.index], visit); break;
    case RecordKind::List:
        for (Text& entry : EntriesOf(static_cast<SelectionList>(key.index))) {
            visit(entry);
        }
        break;
    case RecordKind::Route: VisitRoute(key.index, visit); break;
    case RecordKind::Race: VisitRace(key.index, visit); break;
    }
}

const Text& TextOf(const Text& text)
{
    return text;
}

template <std::signed_integral Rep>
Text TextOf(CheckedInteger<Rep> number)
{
    return number == 0 ? Text() : std::to_string(number.value());
}

Text TextOf(CalendarDate date)
{
    return Format(date, "yyyy-mm-dd");
}

void Take(Text& target, const Text& text)
{
    target = text;
}

template <std::signed_integral Rep>
void Take(CheckedInteger<Rep>& target, const Text& text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    if (!text.empty() && std::from_chars(text.data(), end, number).ptr != end) {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
    target = number;
}

void Take(CalendarDate& target, const Text& text)
{
    target = IsoDate(text);
}

void DropBlanks(Values& values)
{
    while (!values.empty() && values.back().empty()) {
        values.pop_back();
    }
}

/// Gives each value that `visit` hands on the next of `values`, a blank one after their end.
template <typename Visit>
void TakeAll(const Values& values, Visit&& visit)
{
    std::size_t taken = 0;
    visit([&](auto& value) {
        static const Text blank;
        Take(value, taken < values.size() ? values[taken] : blank);
        ++taken;
    });
    if (taken < values.size()) {
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    }
}

} // namespace

bool IsRecord(RecordKey key)
{
    const bool filed =
        key.kind != RecordKind::List ||
        std::find(kFiledLists.begin(), kFiledLists.end(), static_cast<SelectionList>(key.index)) != kFiledLists.end();
    return key.index >= 1 && key.index <= LastOf(key.kind) && filed;
}

std::vector<RecordKey> RecordsOf(RecordKind kind)
{
    std::vector<RecordKey> keys;
    for (int index = 1; index <= LastOf(kind); ++index) {
        if (IsRecord({kind, index})) {
            keys.push_back({kind, index});
        }
    }
    return keys;
}

Values ValuesOf(const RecordGiorno& day)
{
    Values values;
    VisitDiaryValues(day, [&](const auto& value) { values.push_back(TextOf(value)); });
    DropBlanks(values);
    return values;
}

Values ValuesOf(RecordKey key)
{
    Values values;
    VisitRecord(key, [&](const auto& value) { values.push_back(TextOf(value)); });
    if (key.kind != RecordKind::List) {
        DropBlanks(values);
    }
    return values;
}

bool Holds(RecordKey key, const Values& values)
{
    std::size_t place = 0;
    bool same = true;
    VisitRecord(key, [&]<typename T>(const T& value) {
        if (place < values.size()) {
            same = same && TextOf(value) == values[place];
        } else {
            same = same && value == T() && key.kind != RecordKind::List;
        }
        ++place;
    });
    return same && place >= values.size();
}

void Restore(RecordKey key, const Values& values)
{
    if (key.kind == RecordKind::Day) {
        Restore(Giorni[key.index], values);
        return;
    }
    const Values kept = ValuesOf(key);
    const auto put = [&](const Values& all) { TakeAll(all, [&](auto&& take) { VisitRecord(key, take); }); };
    if (key.kind == RecordKind::List) {
        EntriesOf(static_cast<SelectionList>(key.index)) = values;
        return;
    }
    try {
        put(values);
    } catch (const ErroreRunTime&) {
        put(kept);
        throw;
    }
}

void Restore(RecordGiorno& day, const Values& values)
{
    RecordGiorno restored = day;
    TakeAll(values, [&](auto&& take) { VisitDiaryValues(restored, take); });
    day = restored;
}

bool SameEntry(const RecordGiorno& one, const RecordGiorno& other)
{
    bool same = true;
    const auto count = [&](const auto& field) {
        Values values[2];
        std::size_t side = 0;
        for (const RecordGiorno* day : {&one, &other}) {
            auto visit = [&](const Text& text) { values[side].push_back(text); };
            field.Visit(*day, visit);
            DropBlanks(values[side]);
            ++side;
        }
        return values[0] == values[1];
    };
    const auto shown = [](const TimeField& field, const RecordGiorno& day) {
        const Text& text = day.*field.member;
        return text == field.none ? TextView() : TextView(text);
    };
    ForEachField(
        Overloaded{[](const SlotField& /*field*/) {}, [](const DateField& /*field*/) {},
                   [&](const TimeField& field) { same = same && shown(field, one) == shown(field, other); },
                   [&](const SplitsField& field) { same = same && count(field); },
                   [&]<int First, int Last>(const NotesField<First, Last>& field) { same = same && count(field); },
                   [&](const auto& field) { same = same && one.*field.member == other.*field.member; }});
    return same;
}

} // namespace zelvia
