// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace zelvia
{

/// The eight selection lists of the day page; the value is the list's number while it is open.
enum class ListaScelta { Percorso = 1, Lunghezza, Modo, Fondo, Tipo, Stagione, TempoAtm, Temperatura };

inline constexpr std::array<ListaScelta, 8> kTutteLeListe = {
    ListaScelta::Percorso, ListaScelta::Lunghezza, ListaScelta::Modo,     ListaScelta::Fondo,
    ListaScelta::Tipo,     ListaScelta::Stagione,  ListaScelta::TempoAtm, ListaScelta::Temperatura};

/// The lists that have a file, in the order in which they are saved and loaded.
inline constexpr std::array<ListaScelta, 7> kListeSuFile = {
    ListaScelta::Percorso, ListaScelta::Lunghezza, ListaScelta::Modo,       ListaScelta::Fondo,
    ListaScelta::Tipo,     ListaScelta::TempoAtm,  ListaScelta::Temperatura};

/// The field's name, which is also the base name of its list file.
TextView NomeLista(ListaScelta lista);

/// The entries that a list starts with.
std::span<const TextView> VociIniziali(ListaScelta lista);

/// Full path of a list's file in the folder of the open diary.
Text FileLista(ListaScelta lista);

/// The entries of a list of the open diary.
std::vector<Text>& VociDi(ListaScelta lista);

/// True when one of the entries is that text, ignoring case.
bool Holds(const std::vector<Text>& voci, TextView testo);

/// Writes the entries to `path`, one per line. Raises what ValueWriter raises.
void ScriviLista(TextView path, const std::vector<Text>& voci);

/// Reads `path` to its end into the entries, which are emptied once the file is open. Raises what
/// ValueReader raises.
void LeggiLista(TextView path, std::vector<Text>& voci);

} // namespace zelvia
