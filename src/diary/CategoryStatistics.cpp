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
PerCategoria<Text> NomeCategoria;
PerCategoria<i16> ContaCategoria;
PerCategoria<i16> ValoreCategoria;

} // namespace Module1

using namespace Module1;

namespace
{

using R = RecordGiorno;

template <Text R::*field>
bool Filled(const R& giorno)
{
    return !(giorno.*field).empty();
}

template <Text R::*field>
Text TextOf(const R& giorno)
{
    return giorno.*field;
}

template <auto field>
bool NotZero(const R& giorno)
{
    return giorno.*field != 0;
}

template <auto field>
i32 NumberOf(const R& giorno)
{
    return giorno.*field;
}

bool HasDistance(const R& giorno)
{
    return giorno.Km != 0 || giorno.Metri != 0;
}

template <Text R::*field>
constexpr Statistica TextStatistic(TextView titolo, TextView errore, TextView erroreLista)
{
    return {titolo, errore, erroreLista, Filled<field>, TextOf<field>};
}

/// In the order of the categories.
constexpr Statistica kStatistiche[] = {
    TextStatistic<&R::Percorso>("Percorso", "StatisPercorso - ERRORE : ", "Lista Percorso - ERRORE : "),
    TextStatistic<&R::Lunghezza>("Lunghezza", "StatisLunghezza - ERRORE : ", "Lista Lunghezza - ERRORE : "),
    {"Km", "StatisKm - ERRORE : ", "Lista Km - ERRORE : ", HasDistance, TestoKm},
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
     TestoRipetizioni},
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
int SlotOf(const PerCategoria<Slot>& slots, int used, const Value& value)
{
    for (int i = 1; i <= used; ++i) {
        if (SameValue(slots[i], value)) {
            return i;
        }
    }
    return 0;
}

template <typename Slot, typename Value>
void Count(PerCategoria<Slot>& slots, bool (*counted)(const R&), Value (*valueOf)(const R&))
{
    int used = 0;
    for (i16 d = 1; d <= GiornoCorrente; d += 1) {
        const R& giorno = Giorni[d];
        if (!counted(giorno)) {
            continue;
        }
        const Value value = valueOf(giorno);
        if (const int slot = SlotOf(slots, used, value); slot > 0) {
            ContaCategoria[slot] += 1;
        } else if (used < kMaxCategorie) {
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
    for (int i = 1; i <= kMaxCategorie; ++i) {
        if (ContaCategoria[i] > (highest == 0 ? i16(0) : ContaCategoria[highest])) {
            highest = i;
        }
    }
    return highest;
}

template <typename Slot>
void Rank(PerCategoria<Slot>& slots)
{
    PerCategoria<Slot> values;
    PerCategoria<i16> counts;
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
void Blank(PerCategoria<T>& slots)
{
    std::fill(slots.begin() + 1, slots.end(), T());
}

} // namespace

const Statistica& StatisticaDi(Categoria categoria)
{
    return kStatistiche[static_cast<std::size_t>(categoria)];
}

const Statistica* StatisticaDi(TextView titolo)
{
    const auto* found = std::find_if(std::begin(kStatistiche), std::end(kStatistiche),
                                     [&](const Statistica& statistica) { return statistica.titolo == titolo; });
    return found == std::end(kStatistiche) ? nullptr : found;
}

void Module1::AzzeraStatistica()
{
    TitoloStatistica.clear();
    NomeCategoria = {};
    ContaCategoria = {};
    ValoreCategoria = {};
}

void Module1::ContaValori(const Statistica& statistica)
{
    Blank(NomeCategoria);
    Blank(ContaCategoria);
    if (statistica.numero != nullptr) {
        Blank(ValoreCategoria);
        Count(ValoreCategoria, statistica.contato, statistica.numero);
        Rank(ValoreCategoria);
    } else {
        Count(NomeCategoria, statistica.contato, statistica.testo);
        Rank(NomeCategoria);
    }
}

void Module1::VisualStat(TextView titolo, VistaStatistica& vista)
{
    Trap("VisualStat - ERRORE : ", [&] {
        vista.SetTitolo(titolo);
        for (int i = 1; i <= kMaxCategorie; ++i) {
            if (!NomeCategoria[i].empty()) {
                vista.AggiungiRiga(RigaStatistica(NomeCategoria[i], ContaCategoria[i]));
            }
        }
    });
}

void Module1::VisualStatint(TextView titolo, VistaStatistica& vista)
{
    Trap("VisualStatint - ERRORE : ", [&] {
        vista.SetTitolo(titolo);
        for (int i = 1; i <= kMaxCategorie; ++i) {
            if (ValoreCategoria[i] != 0) {
                vista.AggiungiRiga(RigaStatistica(Str(ValoreCategoria[i]), ContaCategoria[i]));
            }
        }
    });
}

Text RigaStatistica(TextView nome, i16 conta)
{
    constexpr std::size_t nameColumns = 30;
    constexpr std::size_t columns = 40;
    Text riga(nome.substr(0, nameColumns));
    riga.resize(nameColumns, ' ');
    riga += conta < 10 ? "     " : conta < 100 ? "    " : "   ";
    riga += PlainText(conta);
    riga.resize(columns, ' ');
    return riga;
}

void EseguiStatistica(const Statistica& statistica, VistaStatistica& vista)
{
    Trap(statistica.errore, [&] {
        TitoloStatistica = Text(statistica.titolo);
        ContaValori(statistica);
        if (statistica.numero != nullptr) {
            VisualStatint(TitoloStatistica, vista);
        } else {
            VisualStat(TitoloStatistica, vista);
        }
    });
}

} // namespace zelvia
