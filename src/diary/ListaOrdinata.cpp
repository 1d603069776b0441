// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ListaOrdinata.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/TimeAndPace.h"

namespace zelvia
{
namespace
{

/// The position of the first ":" among `from`..8, or 0.
std::ptrdiff_t ColonFrom(TextView text, std::ptrdiff_t from)
{
    constexpr std::ptrdiff_t last = 8;
    for (auto position = from; position <= last; ++position) {
        if (Mid(text, position, 1) == ":") {
            return position;
        }
    }
    return 0;
}

} // namespace

void ListaOrdinata::Clear(int place)
{
    VociGiorno[place] = 0;
    VociOre[place] = 0;
    VociMinuti[place] = 0;
    VociSecondi[place] = 0;
    VociMedia[place].clear();
    VociData[place] = CalendarDate(2000, 1, 1);
}

void ListaOrdinata::Copy(int place, const ListaOrdinata& from, int source)
{
    VociGiorno[place] = from.VociGiorno[source];
    VociOre[place] = from.VociOre[source];
    VociMinuti[place] = from.VociMinuti[source];
    VociSecondi[place] = from.VociSecondi[source];
    VociMedia[place] = from.VociMedia[source];
    VociData[place] = from.VociData[source];
}

void ListaOrdinata::CreaLista()
{
    NumeroVoci = 0;
    for (int i = 1; i <= kCapacity; ++i) {
        Clear(i);
    }
}

void ListaOrdinata::Trasforma()
{
    Trap("Trasforma - ERRORE : ", [this] {
        // Without a second colon the seconds follow the number of positions tried.
        std::ptrdiff_t second = 8;
        const auto first = ColonFrom(TempoCella, 1);
        if (first > 0) {
            OreCella = Parsed<i16>(Left(TempoCella, first - 1));
            second = ColonFrom(TempoCella, first + 1);
            if (second > 0) {
                MinutiCella = Parsed<i16>(Mid(TempoCella, first + 1, second - 1));
            } else {
                second = 8 - first;
            }
        }
        SecondiCella = Parsed<i16>(Mid(TempoCella, second + 1, second + 3));
    });
}

void ListaOrdinata::Incrementa()
{
    NumeroVoci += 1;
    VociGiorno[NumeroVoci] = GiornoCella;
    VociOre[NumeroVoci] = OreCella;
    VociMinuti[NumeroVoci] = MinutiCella;
    VociSecondi[NumeroVoci] = SecondiCella;
    VociMedia[NumeroVoci] = MediaCella;
    VociData[NumeroVoci] = DataCella;
}

/// The place of the smallest time above 0:00:00, the last one of equals; 0 when there is none.
int ListaOrdinata::SmallestPlace() const
{
    int found = 0;
    i16 hours = 99;
    i16 minutes = 60;
    i16 seconds = 60;
    for (int j = 1; j <= kCapacity; ++j) {
        const bool candidate = VociOre[j] < hours ||
                               (VociOre[j] == hours &&
                                (VociMinuti[j] < minutes || (VociMinuti[j] == minutes && VociSecondi[j] <= seconds)));
        if (candidate && VociOre[j] + VociMinuti[j] + VociSecondi[j] > 0) {
            found = j;
            hours = VociOre[j];
            minutes = VociMinuti[j];
            seconds = VociSecondi[j];
        }
    }
    return found;
}

void ListaOrdinata::Ordina()
{
    Trap("Ordina - ERRORE : ", [this] {
        ListaOrdinata sorted;
        sorted.CreaLista();
        int count = 0;
        for (int place = SmallestPlace(); place > 0; place = SmallestPlace()) {
            sorted.Copy(++count, *this, place);
            Clear(place);
        }
        for (int i = 1; i <= kCapacity; ++i) {
            Copy(i, sorted, i);
        }
    });
}

Text ListaOrdinata::TempoDi(int place) const
{
    return TimeText({VociOre[place], VociMinuti[place], VociSecondi[place]});
}

void ListaOrdinata::RiempiLista()
{
    Trap("RiempiLista - ERRORE : ", [this] {
        for (int i = 1; i <= kCapacity && VociGiorno[i] != 0; ++i) {
            VistaLista(" " + Str(i32(i)) + Text("°"_t), TempoDi(i), VociMedia[i], PlainText(VociData[i]));
        }
    });
}

void ListaOrdinata::RiempiListalst()
{
    Trap("RiempiListalst - ERRORE : ", [this] {
        // An average of any other length leaves the padded text of the previous line.
        Text average;
        for (int i = 1; i <= kCapacity && VociGiorno[i] != 0; ++i) {
            const Text place = Text(i < 10 ? "  " : i < 100 ? " " : "") + Str(i32(i)) + Text("°"_t);
            if (Len(VociMedia[i]) == 4) {
                average = "   " + VociMedia[i];
            } else if (Len(VociMedia[i]) == 5) {
                average = "  " + VociMedia[i];
            }
            Text line = place + "   ";
            line += TempoDi(i);
            line += average;
            line += "   ";
            line += PlainText(VociData[i]);
            CasellaLista->AddLine(line);
        }
    });
}

void ListaOrdinata::Posizione()
{
    Trap("Posizione - ERRORE : ", [this] {
        int found = 0;
        for (int i = 1; i <= kCapacity; ++i) {
            if (VociGiorno[i] == GiornoCella) {
                found = i;
            }
        }
        CasellaLista->Select(found - 1);
    });
}

void AddRunTo(ListaOrdinata& list, i16 day, TextView time, TextView average, CalendarDate date)
{
    list.LOgiorno(day);
    list.LOtempo(time);
    list.LOmedia(average);
    list.LOdata(date);
    list.Trasforma();
    list.Incrementa();
}

} // namespace zelvia
