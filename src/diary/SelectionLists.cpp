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

struct Lista {
    TextView nome;
    std::span<const TextView> voci;
};

constexpr std::array<Lista, 8> kListe = {{{"Percorso", {}},
                                          {"Lunghezza", kLunghezza},
                                          {"Modo", kModo},
                                          {"Fondo", kFondo},
                                          {"Tipo", kTipo},
                                          {"Stagione", kStagione},
                                          {"TempoAtm", kTempoAtm},
                                          {"Temperatura", kTemperatura}}};

const Lista& Riga(ListaScelta lista)
{
    return kListe[static_cast<std::size_t>(lista) - 1];
}

} // namespace

TextView NomeLista(ListaScelta lista)
{
    return Riga(lista).nome;
}

std::span<const TextView> VociIniziali(ListaScelta lista)
{
    return Riga(lista).voci;
}

Text FileLista(ListaScelta lista)
{
    return Module1::CartellaDiario + "\\" + Text(NomeLista(lista)) + ".lsx";
}

std::vector<Text>& VociDi(ListaScelta lista)
{
    return Module1::session.liste[static_cast<int>(lista)];
}

bool Holds(const std::vector<Text>& voci, TextView testo)
{
    return std::any_of(voci.begin(), voci.end(), [&](const Text& voce) { return SameText(voce, testo); });
}

void ScriviLista(TextView path, const std::vector<Text>& voci)
{
    ValueWriter file(path);
    for (const Text& voce : voci) {
        file.Write(voce);
    }
    file.Close();
}

void LeggiLista(TextView path, std::vector<Text>& voci)
{
    ValueReader file(path);
    voci.clear();
    while (!file.AtEnd()) {
        Text voce;
        file.Input(voce);
        voci.push_back(std::move(voce));
    }
}

} // namespace zelvia
