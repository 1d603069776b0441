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
class Box : public CasellaTempi
{
public:
    void AggiungiRiga(TextView riga) override { lines << Bytes(riga); }
    void Seleziona(int indice) override { selected = indice; }

    QByteArrayList lines;
    int selected = kUntouched;
};

/// Keeps the rows that a list writes, their columns joined by a stroke.
class View : public VistaTempi
{
public:
    void AggiungiRiga(TextView posizione, TextView tempo, TextView media, TextView data) override
    {
        rows << Bytes(posizione) + '|' + Bytes(tempo) + '|' + Bytes(media) + '|' + Bytes(data);
    }

    QByteArrayList rows;
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

inline QByteArrayList ViewRows(ListaOrdinata& list)
{
    View view;
    list.NuovaLista(&view);
    list.RiempiLista();
    list.NuovaLista(nullptr);
    return view.rows;
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
