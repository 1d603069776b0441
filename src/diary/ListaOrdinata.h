// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <functional>
#include <utility>

namespace zelvia
{

/// A list box that shows a classification, one line per entry.
class TimesBox
{
public:
    virtual ~TimesBox() = default;
    virtual void AddLine(TextView line) = 0;
    /// From 0 on; -1 selects nothing.
    virtual void Select(int index) = 0;
};

/// Adds a row to a list view that shows a classification: place, time, average and date.
using TimesView = std::function<void(TextView place, TextView time, TextView average, TextView date)>;

/// A list of up to 366 runs that is filled a day at a time, sorted by time taken and written out as a classification.
/// A new one is made each time it is shown: CreaLista; for each run LOgiorno, LOtempo, LOmedia, LOdata, Trasforma and
/// Incrementa; then Ordina and the writing.
class ListaOrdinata
{
public:
    void CreaLista();

    // The entry being assembled.
    void LOgiorno(i16 day) { GiornoCella = day; }
    void LOtempo(TextView time) { TempoCella = time; }
    void LOmedia(TextView average) { MediaCella = average; }
    void LOdata(CalendarDate date) { DataCella = date; }

    /// Splits the entry's time. Hours and minutes without a colon of their own keep those of the previous entry; only
    /// the seconds are always set.
    void Trasforma();

    /// Adds the entry. Raises error 9 beyond 366 entries.
    void Incrementa();

    /// Sorts by time; of equal times the entry added last comes first, and one of 0:00:00 or of more than 99 hours is
    /// dropped.
    void Ordina();

    void NuovaLista(TimesView view) { VistaLista = std::move(view); }
    void RiempiLista();
    void NuovaListalst(TimesBox* casella) { CasellaLista = casella; }
    void RiempiListalst();

    /// Selects the row of the day assembled last, or none.
    void Posizione();

private:
    static constexpr int kCapacity = 366;
    template <typename T>
    using Voci = BoundedArray<T, 0, kCapacity>;

    int SmallestPlace() const;
    void Clear(int place);
    void Copy(int place, const ListaOrdinata& from, int source);
    Text TempoDi(int place) const;

    i16 GiornoCella;
    Text TempoCella;
    i16 OreCella;
    i16 MinutiCella;
    i16 SecondiCella;
    Text MediaCella;
    CalendarDate DataCella;
    i16 NumeroVoci;
    Voci<i16> VociGiorno; ///< 0 marks a free place.
    Voci<i16> VociOre;
    Voci<i16> VociMinuti;
    Voci<i16> VociSecondi;
    Voci<Text> VociMedia;
    Voci<CalendarDate> VociData;
    TimesView VistaLista;
    TimesBox* CasellaLista = nullptr;
};

/// Adds one run. Raises error 9 beyond 366 entries.
void AddRunTo(ListaOrdinata& list, i16 day, TextView time, TextView average, CalendarDate date);

} // namespace zelvia
