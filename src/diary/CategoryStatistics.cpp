// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CategoryStatistics.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/CategoryTexts.h"
#include "diary/Module1.h"

#include <algorithm>

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

template <Text R::*field>
bool Filled(const R& day)
{
    return !(day.*field).empty();
}

template <Text R::*field>
Text TextOf(const R& day)
{
    return day.*field;
}

template <auto field>
bool NotZero(const R& day)
{
    return day.*field != 0;
}

template <auto field>
i32 NumberOf(const R& day)
{
    return day.*field;
}

bool HasDistance(const R& day)
{
    return day.Km != 0 || day.Metri != 0;
}

template <Text R::*field>
constexpr Statistic TextStatistic(TextView title, TextView error, TextView listError)
{
    return {title, error, listError, Filled<field>, TextOf<field>};
}

/// In the order of the categories.
constexpr Statistic kStatistiche[] = {
    TextStatistic<&R::Percorso>("Percorso", "StatisPercorso - ERRORE : ", "Lista Percorso - ERRORE : "),
    TextStatistic<&R::Lunghezza>("Lunghezza", "StatisLunghezza - ERRORE : ", "Lista Lunghezza - ERRORE : "),
    {"Km", "StatisKm - ERRORE : ", "Lista Km - ERRORE : ", HasDistance, KmText},
    TextStatistic<&R::Modo>("Andatura", "SatisAndatura - ERRORE : ", "Lista Andatura - ERRORE : "),
    TextStatistic<&R::Fondo>("Terreno", "StatisFondo - ERRORE : ", "Lista Fondo - ERRORE : "),
    TextStatistic<&R::Tipo>("Tipo", "StatisTipo - ERRORE : ", "Lista Tipo - ERRORE : "),
    TextStatistic<&R::Stagione>("Stagione", "StatisStagione - ERRORE : ", "Lista Stagione - ERRORE : "),
    TextStatistic<&R::TempoAtm>("Meteo", "StatisMeteo - ERRORE : ", "Lista Meteo - ERRORE : "),
    TextStatistic<&R::Temperatura>("Temperatura", "StatisTemperatura - ERRORE : ", "Lista Temperatura - ERRORE : "),
    {"Corridori", "StatisCorridori - ERRORE : ", "Lista Corridori - ERRORE : ", HasDistance, nullptr,
     NumberOf<&R::Corridori>},
    {"Peso", "StatisPeso - ERRORE : ", "Lista Peso - ERRORE : ", NotZero<&R::Peso>, nullptr, NumberOf<&R::Peso>},
    {"Ripetizioni", "StatisRipetizioni - ERRORE : ", "Lista Ripetizioni - ERRORE : ", NotZero<&R::Ripetizioni>,
     RepetitionsText},
};

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
    Trap(statistic.error, [&] {
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
