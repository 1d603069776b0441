// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/RecordGiorno.h"
#include "diary/SelectionLists.h"

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

// The kinds of fields. Each has the label under which two diaries are compared, the number of lines that it takes in
// the file, and hands its values to a visitor in their order.

template <typename T>
struct SingleField {
    static constexpr int kLines = 1;
    TextView label;
    T RecordGiorno::*member;

    void Visit(auto& giorno, auto& visit) const { visit(giorno.*member); }
};

/// The day's place in the year. It is never compared.
struct SlotField : SingleField<i16> {
};

struct DateField : SingleField<CalendarDate> {
};

/// A text that is entered with a selection list.
struct ListField : SingleField<Text> {
    SelectionList lista;
};

template <typename T>
struct NumberField : SingleField<T> {
    NumberRange range;
};

/// A time that is worked out and kept as the page shows it.
struct TimeField : SingleField<Text> {
    TextView none; ///< What the page shows while there is none.
};

/// The kilometre splits. The last of the record has no line in the file.
struct SplitsField {
    static constexpr int kLines = 100;
    TextView label;

    void Visit(auto& giorno, auto& visit) const { giorno.ListaKm.Visit(0, kLines - 1, visit); }
};

/// The notes First..Last of the record.
template <int First, int Last>
struct NotesField {
    static constexpr int kLines = Last - First + 1;
    TextView label;

    void Visit(auto& giorno, auto& visit) const
    {
        for (int i = First; i <= Last; ++i) {
            visit(giorno.Note[i]);
        }
    }
};

/// Notes that have no place on the page.
using HiddenNotes = NotesField<1, 2>;
using PageNotes = NotesField<3, 10>;

/// The fields of a day, in the order of the diary file: 136 lines.
inline constexpr auto kFields = [] {
    using R = RecordGiorno;
    return std::tuple(
        SlotField{{{}, &R::NumGiorno}}, DateField{{"Data", &R::Data}},
        ListField{{"Percorso", &R::Percorso}, SelectionList::Percorso},
        ListField{{"Lunghezza", &R::Lunghezza}, SelectionList::Lunghezza}, NumberField<i16>{{"Km", &R::Km}, {0, 500}},
        NumberField<i16>{{"Metri", &R::Metri}, {0, 999}}, ListField{{"Andatura", &R::Modo}, SelectionList::Modo},
        ListField{{"Terreno", &R::Fondo}, SelectionList::Fondo}, ListField{{"Tipo", &R::Tipo}, SelectionList::Tipo},
        NumberField<i16>{{"Ora Inizio, ore", &R::OraInizio}, {0, 24}},
        NumberField<i16>{{"Ora Inizio, minuti", &R::MinutiInizio}, {0, 59}},
        NumberField<i16>{{"Ora Inizio, secondi", &R::SecondiInizio}, {0, 59}},
        NumberField<i16>{{"Ora Fine, ore", &R::OraFine}, {0, 24}},
        NumberField<i16>{{"Ora Fine, minuti", &R::MinutiFine}, {0, 59}},
        NumberField<i16>{{"Ora Fine, secondi", &R::SecondiFine}, {0, 59}},
        TimeField{{"Tempo", &R::TempoImpiegato}, "0:00:00"}, TimeField{{"Media", &R::MediaKm}, "0:00"},
        SplitsField{"Tempi Km"}, ListField{{"Stagione", &R::Stagione}, SelectionList::Stagione},
        ListField{{"Meteo", &R::TempoAtm}, SelectionList::TempoAtm},
        ListField{{"Temperatura", &R::Temperatura}, SelectionList::Temperatura},
        NumberField<i32>{{"Corridori", &R::Corridori}, {1, 100000}}, NumberField<i16>{{"Peso", &R::Peso}, {0, 150}},
        NumberField<i16>{{"Ripetizioni", &R::Ripetizioni}, {0, 99}},
        NumberField<i16>{{"Ripetizioni, metri", &R::RipetizioniDistanza}, {0, 10000, 100}},
        NumberField<i16>{{"Ripetizioni, minuti", &R::RipetizioniQuante}, {0, 60}},
        NumberField<i16>{{"Ripetizioni, secondi", &R::RipetizioniTempi}, {0, 59}}, HiddenNotes{"Note fuori pagina"},
        PageNotes{"Note"});
}();

/// Hands each field to `visit`, which takes every kind.
template <typename Visitor>
constexpr void ForEachField(Visitor&& visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, kFields);
}

/// Hands the 136 values of a day to `visit`, in the order of the diary file.
template <typename Giorno, typename Visitor>
void VisitDiaryValues(Giorno& giorno, Visitor&& visit)
{
    ForEachField([&](const auto& field) { field.Visit(giorno, visit); });
}

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

} // namespace zelvia
