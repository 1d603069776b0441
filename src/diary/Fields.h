// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/CategoryTexts.h"
#include "diary/RecordGiorno.h"
#include "diary/SearchCriteria.h"
#include "diary/SelectionLists.h"

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace zelvia
{

/// What the page lets the user enter into a number.
struct NumberRange {
    int minimum = 0;
    int maximum = 0;
    int step = 1;
};

/// Where a value is printed on the sheet of a day. One without a line is not.
struct SheetPlace {
    int line = 0;
    TextView caption = {};
    int column = 16;
    TextView mark = {}; ///< Printed between the value before it and this one.
};

/// How the values of a field are counted and looked for. One without a name is not.
struct FieldStatistic {
    TextView name = {};  ///< As its routines, its menu entry and its button have it.
    TextView entry = {}; ///< The caption of that menu entry.
    Criterion criterion = {};
    bool (*counted)(const RecordGiorno& day) = nullptr; ///< Null: what is neither empty nor 0 counts.
    Text (*text)(const RecordGiorno& day) = nullptr;    ///< Null for a value that is counted as it is.
};

// The kinds of fields. Each has the label under which two diaries are compared, which is also the title of its
// statistic, and the number of lines that it takes in the file, and hands its values to a visitor in their order.

template <typename T>
struct SingleField {
    static constexpr int kLines = 1;
    TextView label;
    T RecordGiorno::*member;

    void Visit(auto& day, auto& visit) const { visit(day.*member); }
};

/// The day's place in the year. It is never compared.
struct SlotField : SingleField<i16> {
};

struct DateField : SingleField<CalendarDate> {
};

/// A text that is entered with a selection list.
struct ListField : SingleField<Text> {
    SelectionList list;
    SheetPlace place = {};
    FieldStatistic statistic = {};
};

template <typename T>
struct NumberField : SingleField<T> {
    NumberRange range;
    SheetPlace place = {};
    FieldStatistic statistic = {};
};

/// A time that is worked out and kept as the page shows it.
struct TimeField : SingleField<Text> {
    TextView none; ///< What the page shows while there is none.
    SheetPlace place = {};
};

/// The kilometre splits. The last of the record has no line in the file.
struct SplitsField {
    static constexpr int kLines = 100;
    TextView label;

    void Visit(auto& day, auto& visit) const { day.ListaKm.Visit(0, kLines - 1, visit); }
};

/// The notes First..Last of the record.
template <int First, int Last>
struct NotesField {
    static constexpr int kLines = Last - First + 1;
    TextView label;

    void Visit(auto& day, auto& visit) const
    {
        for (int i = First; i <= Last; ++i) {
            visit(day.Note[i]);
        }
    }
};

/// Notes that have no place on the page.
using HiddenNotes = NotesField<1, kFirstNote - 1>;
using PageNotes = NotesField<kFirstNote, kLastNote>;

/// The fields of a day, in the order of the diary file. Of a field of several numbers the first one is counted for
/// all of them.
inline constexpr auto kFields = [] {
    using R = RecordGiorno;
    using C = SearchCriteria;
    using L = SelectionList;
    using N16 = NumberField<i16>;
    using N32 = NumberField<i32>;
    return std::tuple(
        SlotField{{{}, &R::NumGiorno}}, DateField{{"Data", &R::Data}},
        ListField{
            {"Percorso", &R::Percorso}, L::Percorso, {4, "Percorso "}, {"Percorso", "Perc&orso", &C::CercaPercorso}},
        ListField{{"Lunghezza", &R::Lunghezza},
                  L::Lunghezza,
                  {6, "Lunghezza"},
                  {"Lunghezza", "&Lunghezza", &C::CercaLunghezza}},
        N16{{"Km", &R::Km}, {0, 500}, {8, "Km"}, {"Km", "&Km", &C::CercaKm, HasDistance, KmText}},
        N16{{"Metri", &R::Metri}, {0, 999}},
        ListField{{"Andatura", &R::Modo}, L::Modo, {10, "Andatura "}, {"Andatura", "&Andatura", &C::CercaAndatura}},
        ListField{{"Terreno", &R::Fondo}, L::Fondo, {12, "Terreno"}, {"Fondo", "Terre&no", &C::CercaFondo}},
        ListField{{"Tipo", &R::Tipo}, L::Tipo, {14, "Tipo"}, {"Tipo", "&Tipo", &C::CercaTipo}},
        N16{{"Ora Inizio, ore", &R::OraInizio}, {0, 24}, {16, "Ora Inizio"}},
        N16{{"Ora Inizio, minuti", &R::MinutiInizio}, {0, 59}},
        N16{{"Ora Inizio, secondi", &R::SecondiInizio}, {0, 59}},
        N16{{"Ora Fine, ore", &R::OraFine}, {0, 24}, {18, "Ora Fine"}},
        N16{{"Ora Fine, minuti", &R::MinutiFine}, {0, 59}}, N16{{"Ora Fine, secondi", &R::SecondiFine}, {0, 59}},
        TimeField{{"Tempo", &R::TempoImpiegato}, "0:00:00", {20, "Tempo"}},
        TimeField{{"Media", &R::MediaKm}, "0:00", {22, "Media"}}, SplitsField{"Tempi Km"},
        ListField{
            {"Stagione", &R::Stagione}, L::Stagione, {24, "Stagione"}, {"Stagione", "Sta&gione", &C::CercaStagione}},
        ListField{{"Meteo", &R::TempoAtm}, L::TempoAtm, {26, "Meteo"}, {"Meteo", "&Meteo", &C::CercaMeteo}},
        ListField{{"Temperatura", &R::Temperatura},
                  L::Temperatura,
                  {28, "Temperatura"},
                  {"Temperatura", "T&emperatura", &C::CercaTemperatura}},
        N32{{"Corridori", &R::Corridori},
            {1, 100000},
            {30, "Corridori"},
            {"Corridori", "&Corridori", &C::CercaCorridori, HasDistance}},
        N16{{"Peso", &R::Peso}, {0, 150}, {32, "Peso"}, {"Peso", "Pe&so", &C::CercaPeso}},
        N16{{"Ripetizioni", &R::Ripetizioni},
            {0, 99},
            {34, "Ripetizioni"},
            {"Ripetizioni", "&Ripetizioni", &C::CercaRipetizioni, nullptr, RepetitionsText}},
        N16{{"Ripetizioni, metri", &R::RipetizioniDistanza}, {0, 10000, 100}, {34, {}, 20, "x"}},
        N16{{"Ripetizioni, minuti", &R::RipetizioniQuante}, {0, 60}, {34, {}, 27, "@"}},
        N16{{"Ripetizioni, secondi", &R::RipetizioniTempi}, {0, 59}}, HiddenNotes{"Note fuori pagina"},
        PageNotes{"Note"});
}();

/// Hands each field to `visit`, which takes every kind.
template <typename Visitor>
constexpr void ForEachField(Visitor&& visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, kFields);
}

/// Hands the values of a day to `visit`, in the order of the diary file.
template <typename Giorno, typename Visitor>
void VisitDiaryValues(Giorno& day, Visitor&& visit)
{
    ForEachField([&](const auto& field) { field.Visit(day, visit); });
}

/// Hands the fields that are printed to `visit`, in the order of the sheet.
template <typename Visitor>
constexpr void ForEachPrinted(Visitor&& visit)
{
    ForEachField([&](const auto& field) {
        if constexpr (requires { field.place; }) {
            if (field.place.line > 0) {
                visit(field);
            }
        }
    });
}

inline constexpr std::size_t kPrintedFields = [] {
    std::size_t count = 0;
    ForEachPrinted([&](const auto& /*field*/) { ++count; });
    return count;
}();

/// The fields that have a statistic.
inline constexpr std::size_t kCountedFields = [] {
    std::size_t count = 0;
    ForEachField([&](const auto& field) {
        if constexpr (requires { field.statistic; }) {
            if (!field.statistic.name.empty()) {
                ++count;
            }
        }
    });
    return count;
}();

/// The range of the number kept in `member`.
template <typename T>
constexpr NumberRange RangeOf(T RecordGiorno::*member)
{
    NumberRange range;
    ForEachField([&](const auto& field) {
        if constexpr (std::is_same_v<decltype(field), const NumberField<T>&>) {
            range = field.member == member ? field.range : range;
        }
    });
    return range;
}

/// A visitor made of one function for each kind.
template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace zelvia
