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

void ListaOrdinata::Clear(int posto)
{
    VociGiorno[posto] = 0;
    VociOre[posto] = 0;
    VociMinuti[posto] = 0;
    VociSecondi[posto] = 0;
    VociMedia[posto].clear();
    VociData[posto] = CalendarDate(2000, 1, 1);
}

void ListaOrdinata::Copy(int posto, const ListaOrdinata& from, int source)
{
    VociGiorno[posto] = from.VociGiorno[source];
    VociOre[posto] = from.VociOre[source];
    VociMinuti[posto] = from.VociMinuti[source];
    VociSecondi[posto] = from.VociSecondi[source];
    VociMedia[posto] = from.VociMedia[source];
    VociData[posto] = from.VociData[source];
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
    i16 ore = 99;
    i16 minuti = 60;
    i16 secondi = 60;
    for (int j = 1; j <= kCapacity; ++j) {
        const bool candidate =
            VociOre[j] < ore ||
            (VociOre[j] == ore && (VociMinuti[j] < minuti || (VociMinuti[j] == minuti && VociSecondi[j] <= secondi)));
        if (candidate && VociOre[j] + VociMinuti[j] + VociSecondi[j] > 0) {
            found = j;
            ore = VociOre[j];
            minuti = VociMinuti[j];
            secondi = VociSecondi[j];
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
        for (int posto = SmallestPlace(); posto > 0; posto = SmallestPlace()) {
            sorted.Copy(++count, *this, posto);
            Clear(posto);
        }
        for (int i = 1; i <= kCapacity; ++i) {
            Copy(i, sorted, i);
        }
    });
}

Text ListaOrdinata::TempoDi(int posto) const
{
    return TestoTempo({VociOre[posto], VociMinuti[posto], VociSecondi[posto]});
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
        Text media;
        for (int i = 1; i <= kCapacity && VociGiorno[i] != 0; ++i) {
            const Text posto = Text(i < 10 ? "  " : i < 100 ? " " : "") + Str(i32(i)) + Text("°"_t);
            if (Len(VociMedia[i]) == 4) {
                media = "   " + VociMedia[i];
            } else if (Len(VociMedia[i]) == 5) {
                media = "  " + VociMedia[i];
            }
            Text riga = posto + "   ";
            riga += TempoDi(i);
            riga += media;
            riga += "   ";
            riga += PlainText(VociData[i]);
            CasellaLista->AggiungiRiga(riga);
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
        CasellaLista->Seleziona(found - 1);
    });
}

void AggiungiCorsa(ListaOrdinata& lista, i16 giorno, TextView tempo, TextView media, CalendarDate data)
{
    lista.LOgiorno(giorno);
    lista.LOtempo(tempo);
    lista.LOmedia(media);
    lista.LOdata(data);
    lista.Trasforma();
    lista.Incrementa();
}

} // namespace zelvia
