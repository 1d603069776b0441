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
enum class SelectionList { Percorso = 1, Lunghezza, Modo, Fondo, Tipo, Stagione, TempoAtm, Temperatura };

inline constexpr std::array<SelectionList, 8> kAllLists = {
    SelectionList::Percorso, SelectionList::Lunghezza, SelectionList::Modo,     SelectionList::Fondo,
    SelectionList::Tipo,     SelectionList::Stagione,  SelectionList::TempoAtm, SelectionList::Temperatura};

/// The lists that have a file, in the order in which they are saved and loaded.
inline constexpr std::array<SelectionList, 7> kFiledLists = {
    SelectionList::Percorso, SelectionList::Lunghezza, SelectionList::Modo,       SelectionList::Fondo,
    SelectionList::Tipo,     SelectionList::TempoAtm,  SelectionList::Temperatura};

/// The field's name, which is also the base name of its list file.
TextView ListName(SelectionList list);

/// The entries that a list starts with.
std::span<const TextView> FirstEntries(SelectionList list);

/// Full path of a list's file in the folder of the open diary.
Text ListPath(SelectionList list);

/// The entries of a list of the open diary.
std::vector<Text>& EntriesOf(SelectionList list);

/// True when one of the entries is that text, ignoring case.
bool Holds(const std::vector<Text>& entries, TextView text);

/// Writes the entries to `path`, one per line. Raises what ValueWriter raises.
void WriteEntries(TextView path, const std::vector<Text>& entries);

/// Reads `path` to its end into the entries, which are emptied once the file is open. Raises what
/// ValueReader raises.
void ReadEntries(TextView path, std::vector<Text>& entries);

} // namespace zelvia
