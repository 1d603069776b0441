// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/ListaOrdinata.h"
#include "support/Bytes.h"

#include <QByteArrayList>

namespace zelvia::test
{

inline constexpr int kPlaces = 366;
inline constexpr int kNothingSelected = -1;
inline constexpr int kUntouched = -2;

/// Keeps what a list writes and selects.
class Box : public TimesBox
{
public:
    void AddLine(TextView riga) override { lines << Bytes(riga); }
    void Select(int indice) override { selected = indice; }

    QByteArrayList lines;
    int selected = kUntouched;
};

/// Day 1 is 1 January 2008, a leap year.
inline CalendarDate DateOf(int day)
{
    return CalendarDate(2008, 1, 1).PlusDays(day - 1);
}

inline void Add(ListaOrdinata& list, int day, const QByteArray& time, const QByteArray& average = "5:00")
{
    list.LOgiorno(day);
    list.LOtempo(TextOf(time));
    list.LOmedia(TextOf(average));
    list.LOdata(DateOf(day));
    list.Trasforma();
    list.Incrementa();
}

inline QByteArrayList BoxLines(ListaOrdinata& list)
{
    Box box;
    list.NuovaListalst(&box);
    list.RiempiListalst();
    list.NuovaListalst(nullptr);
    return box.lines;
}

/// The rows that the list writes, their columns joined by a stroke.
inline QByteArrayList ViewRows(ListaOrdinata& list)
{
    QByteArrayList rows;
    list.NuovaLista([&](TextView place, TextView time, TextView average, TextView date) {
        rows << Bytes(place) + '|' + Bytes(time) + '|' + Bytes(average) + '|' + Bytes(date);
    });
    list.RiempiLista();
    list.NuovaLista({});
    return rows;
}

/// The row that the list selects in its box.
inline int Selected(ListaOrdinata& list)
{
    Box box;
    list.NuovaListalst(&box);
    list.Posizione();
    list.NuovaListalst(nullptr);
    return box.selected;
}

} // namespace zelvia::test
