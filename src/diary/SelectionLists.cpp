// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SelectionLists.h"

#include "core/Conversions.h"
#include "core/ValueFile.h"
#include "diary/Module1.h"

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

constexpr std::array<TextView, 9> kLunghezza = {"Cortissimo", "Corto",       "Medio/Corto",    "Medio",   "Medio/Lungo",
                                                "Lungo",      "Lunghissimo", "Mezza Maratona", "Maratona"};
constexpr std::array<TextView, 7> kModo = {"Lentissima",   "Lenta",  "Media/Lenta", "Media",
                                           "Media/Veloce", "Veloce", "Fartlek"};
constexpr std::array<TextView, 9> kFondo = {
    "Strada",   "Strada/Salita",   "Strada/Sentiero",      "Strada/Sentiero/Salita", "Pista Atletica",
    "Sentiero", "Sentiero/Salita", "Sentiero di montagna", "Spiaggia/Sabbia"};
constexpr std::array<TextView, 2> kTipo = {"Allenamento", "Gara"};
constexpr std::array<TextView, 4> kStagione = {"Primavera", "Estate", "Autunno", "Inverno"};
constexpr std::array<TextView, 17> kTempoAtm = {
    "Sole",        "Sole/Vento",          "Sole/Vento forte",     "Sole/Nuvoloso",    "Sole/Nuvoloso/Vento",
    "Nuvoloso",    "Nuvoloso/Vento",      "Nuvoloso/Vento forte", "Nuvoloso/Pioggia", "Nuvoloso/Pioggia/Vento",
    "Neve",        "Neve/Ghiaccio",       "Neve/Ghiaccio/Vento",  "Nebbia",           "Nebbia/Pioggia",
    "Nebbia/Neve", "Nebbia/Neve/Ghiaccio"};
constexpr std::array<TextView, 6> kTemperatura = {"Caldo", "Molto Caldo", "Afa", "Mite", "Freddo", "Molto Freddo"};

struct NamedList {
    TextView name;
    std::span<const TextView> entries;
};

constexpr std::array<NamedList, 8> kLists = {{{"Percorso", {}},
                                              {"Lunghezza", kLunghezza},
                                              {"Modo", kModo},
                                              {"Fondo", kFondo},
                                              {"Tipo", kTipo},
                                              {"Stagione", kStagione},
                                              {"TempoAtm", kTempoAtm},
                                              {"Temperatura", kTemperatura}}};

const NamedList& RowOf(SelectionList list)
{
    return kLists[static_cast<std::size_t>(list) - 1];
}

} // namespace

TextView ListName(SelectionList list)
{
    return RowOf(list).name;
}

std::span<const TextView> FirstEntries(SelectionList list)
{
    return RowOf(list).entries;
}

Text ListPath(SelectionList list)
{
    return Module1::CartellaDiario + "\\" + Text(ListName(list)) + ".lsx";
}

std::vector<Text>& EntriesOf(SelectionList list)
{
    return Module1::session.lists[static_cast<int>(list)];
}

bool Holds(const std::vector<Text>& entries, TextView text)
{
    return std::any_of(entries.begin(), entries.end(), [&](const Text& entry) { return SameText(entry, text); });
}

void WriteEntries(TextView path, const std::vector<Text>& entries)
{
    ValueWriter file(path);
    for (const Text& entry : entries) {
        file.Write(entry);
    }
    file.Close();
}

void ReadEntries(TextView path, std::vector<Text>& entries)
{
    ValueReader file(path);
    entries.clear();
    while (!file.AtEnd()) {
        Text entry;
        file.Input(entry);
        entries.push_back(std::move(entry));
    }
}

} // namespace zelvia
