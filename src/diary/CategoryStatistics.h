// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/Fields.h"
#include "diary/RecordGiorno.h"
#include "diary/SearchCriteria.h"

#include <array>
#include <cstddef>

namespace zelvia
{

/// The fields of a day whose values can be counted, in the order of the table of fields.
enum class Categoria {
    Percorso,
    Lunghezza,
    Km,
    Andatura,
    Fondo,
    Tipo,
    Stagione,
    Meteo,
    Temperatura,
    Corridori,
    Peso,
    Ripetizioni
};

// Qualified: the calendar of races has a Categoria, too, which a source may have opened.
inline constexpr auto kAllCategories = [] {
    std::array<zelvia::Categoria, kCountedFields> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<zelvia::Categoria>(i);
    }
    return all;
}();

/// What is specific to one category's statistic.
struct Statistic {
    TextView title; ///< The word that names the category.
    TextView name;  ///< As its routines, its menu entry and its button have it.
    TextView entry; ///< The caption of the menu entry.
    Criterion criterion;
    bool (*counts)(const RecordGiorno& day);          ///< Whether the day counts.
    Text (*text)(const RecordGiorno& day);            ///< Its value, null where that is a number.
    i32 (*number)(const RecordGiorno& day) = nullptr; ///< Its value, null where that is a text.
};

const Statistic& StatisticOf(zelvia::Categoria category);
/// By its title, case-sensitive; null when there is none.
const Statistic* StatisticOf(TextView title);

/// The largest number of different values in a statistic.
inline constexpr int kMaxCategories = 60;
/// Slot 0 is never written.
template <typename T>
using PerCategory = BoundedArray<T, 0, kMaxCategories>;

/// Where a statistic is shown.
class StatisticView
{
public:
    virtual ~StatisticView() = default;
    virtual void SetTitle(TextView title) = 0;
    virtual void AddLine(TextView line) = 0;
};

namespace Module1
{

// The result of the last statistic, in descending order of count in the slots from 1 on.
extern Text TitoloStatistica;
extern PerCategory<Text> NomeCategoria;
extern PerCategory<i16> ContaCategoria;
extern PerCategory<i16> ValoreCategoria; ///< The numeric statistics use it in place of NomeCategoria.

/// Empties all of it.
void ClearStatistic();

/// Counts each value of the days 1..GiornoCorrente and ranks them into the arrays above; of equal counts the value seen
/// first comes first. Texts are compared ignoring case and kept as first spelt. Values beyond the 60th are left out.
/// TitoloStatistica stays, ValoreCategoria too unless the values are numbers. Raises error 6 for a number above 32767;
/// the slots then hold the counts so far, unranked.
void CountValues(const Statistic& statistic);

/// Writes the title, and a line for each slot that has a name.
void VisualStat(TextView title, StatisticView& view);
/// Writes the title, and a line for each slot whose value is not 0.
void VisualStatint(TextView title, StatisticView& view);

} // namespace Module1

/// A line of 40 columns: the name, cut at 30 characters, and the count, which ends in column 36.
Text StatisticLine(TextView name, i16 count);

/// The whole routine of one statistic under its trap: names it, counts and shows.
void RunStatistic(const Statistic& statistic, StatisticView& view);

} // namespace zelvia
