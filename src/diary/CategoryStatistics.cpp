// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CategoryStatistics.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <utility>

namespace zelvia
{
namespace Module1
{

Text TitoloStatistica;
PerCategory<Text> NomeCategoria;
PerCategory<i16> ContaCategoria;
PerCategory<i16> ValoreCategoria;

} // namespace Module1

using namespace Module1;

namespace
{

using R = RecordGiorno;

template <std::size_t I>
constexpr const auto& kField = std::get<I>(kFields);

using Statistics = std::array<Statistic, kCountedFields>;

/// Adds the statistic of a field that has one.
template <std::size_t I>
void Append(Statistics& rows, std::size_t& count)
{
    if constexpr (requires { kField<I>.statistic; }) {
        const FieldStatistic& given = kField<I>.statistic;
        if (given.name.empty()) {
            return;
        }
        using Value = std::remove_cvref_t<decltype(R().*kField<I>.member)>;
        Statistic& row = rows[count++];
        row = {kField<I>.label, given.name, given.entry, given.criterion, given.counted, given.text};
        if (row.counts == nullptr) {
            row.counts = [](const R& day) { return day.*kField<I>.member != Value(); };
        }
        if constexpr (std::is_same_v<Value, Text>) {
            row.text = [](const R& day) { return day.*kField<I>.member; };
        } else if (row.text == nullptr) {
            row.number = [](const R& day) { return i32(day.*kField<I>.member); };
        }
    }
}

const Statistics kStatistiche = []<std::size_t... I>(std::index_sequence<I...>)
{
    Statistics rows{};
    std::size_t count = 0;
    (Append<I>(rows, count), ...);
    return rows;
}
(std::make_index_sequence<std::tuple_size_v<decltype(kFields)>>());

bool SameValue(const Text& slot, const Text& value)
{
    return SameText(slot, value);
}

bool SameValue(i16 slot, i32 value)
{
    return slot == value;
}

/// The slot of the value among the first `used`, 0 when it has none.
template <typename Slot, typename Value>
int SlotOf(const PerCategory<Slot>& slots, int used, const Value& value)
{
    for (int i = 1; i <= used; ++i) {
        if (SameValue(slots[i], value)) {
            return i;
        }
    }
    return 0;
}

template <typename Slot, typename Value>
void Count(PerCategory<Slot>& slots, bool (*counted)(const R&), Value (*valueOf)(const R&))
{
    int used = 0;
    for (i16 d = 1; d <= GiornoCorrente; d += 1) {
        const R& day = Giorni[d];
        if (!counted(day)) {
            continue;
        }
        const Value value = valueOf(day);
        if (const int slot = SlotOf(slots, used, value); slot > 0) {
            ContaCategoria[slot] += 1;
        } else if (used < kMaxCategories) {
            ++used;
            slots[used] = Slot(value);
            ContaCategoria[used] = 1;
        }
    }
}

/// The lowest of the slots with the highest count, 0 when all are empty.
int HighestSlot()
{
    int highest = 0;
    for (int i = 1; i <= kMaxCategories; ++i) {
        if (ContaCategoria[i] > (highest == 0 ? i16(0) : ContaCategoria[highest])) {
            highest = i;
        }
    }
    return highest;
}

template <typename Slot>
void Rank(PerCategory<Slot>& slots)
{
    PerCategory<Slot> values;
    PerCategory<i16> counts;
    int place = 0;
    for (int slot = HighestSlot(); slot > 0; slot = HighestSlot()) {
        ++place;
        values[place] = slots[slot];
        counts[place] = ContaCategoria[slot];
        ContaCategoria[slot] = 0;
    }
    std::copy(values.begin() + 1, values.end(), slots.begin() + 1);
    std::copy(counts.begin() + 1, counts.end(), ContaCategoria.begin() + 1);
}

template <typename T>
void Blank(PerCategory<T>& slots)
{
    std::fill(slots.begin() + 1, slots.end(), T());
}

} // namespace

const Statistic& StatisticOf(Categoria category)
{
    return kStatistiche[static_cast<std::size_t>(category)];
}

const Statistic* StatisticOf(TextView title)
{
    const auto* found = std::find_if(std::begin(kStatistiche), std::end(kStatistiche),
                                     [&](const Statistic& statistic) { return statistic.title == title; });
    return found == std::end(kStatistiche) ? nullptr : found;
}

void Module1::ClearStatistic()
{
    TitoloStatistica.clear();
    NomeCategoria = {};
    ContaCategoria = {};
    ValoreCategoria = {};
}

void Module1::CountValues(const Statistic& statistic)
{
    Blank(NomeCategoria);
    Blank(ContaCategoria);
    if (statistic.number != nullptr) {
        Blank(ValoreCategoria);
        Count(ValoreCategoria, statistic.counts, statistic.number);
        Rank(ValoreCategoria);
    } else {
        Count(NomeCategoria, statistic.counts, statistic.text);
        Rank(NomeCategoria);
    }
}

void Module1::VisualStat(TextView title, StatisticView& view)
{
    Trap("VisualStat - ERRORE : ", [&] {
        view.SetTitle(title);
        for (int i = 1; i <= kMaxCategories; ++i) {
            if (!NomeCategoria[i].empty()) {
                view.AddLine(StatisticLine(NomeCategoria[i], ContaCategoria[i]));
            }
        }
    });
}

void Module1::VisualStatint(TextView title, StatisticView& view)
{
    Trap("VisualStatint - ERRORE : ", [&] {
        view.SetTitle(title);
        for (int i = 1; i <= kMaxCategories; ++i) {
            if (ValoreCategoria[i] != 0) {
                view.AddLine(StatisticLine(Str(ValoreCategoria[i]), ContaCategoria[i]));
            }
        }
    });
}

Text StatisticLine(TextView name, i16 count)
{
    constexpr std::size_t nameColumns = 30;
    constexpr std::size_t columns = 40;
    Text line(name.substr(0, nameColumns));
    line.resize(nameColumns, ' ');
    line += count < 10 ? "     " : count < 100 ? "    " : "   ";
    line += PlainText(count);
    line.resize(columns, ' ');
    return line;
}

void RunStatistic(const Statistic& statistic, StatisticView& view)
{
    // One of them is misspelt.
    const TextView routine = statistic.name == "Andatura" ? "Satis" : "Statis";
    Trap(Text(routine) + Text(statistic.name) + " - ERRORE : ", [&] {
        TitoloStatistica = Text(statistic.title);
        CountValues(statistic);
        if (statistic.number != nullptr) {
            VisualStatint(TitoloStatistica, view);
        } else {
            VisualStat(TitoloStatistica, view);
        }
    });
}

} // namespace zelvia
