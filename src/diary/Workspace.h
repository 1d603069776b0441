// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"

namespace zelvia
{

/// The folder beside the program that holds all diaries.
inline constexpr TextView kDiaryFolder = "ZelviaFile";
/// The pointer file there that holds the path of the diary to open at the start.
inline constexpr TextView kStartPointer = "nomeload";

/// A pointer file holds one text value, a path; ordinary slashes in it are read as backslashes.
Text ReadPointer(TextView path);
void WritePointer(TextView path, TextView value);

/// The name of a path without folder and extension; "" when it has no backslash or no dot after the last one.
Text NomeSenzaCartella(TextView path);

/// A path up to its last dot, "" when it has none.
Text NomeSenzaEstensione(TextView path);

/// The folder that belongs to a diary, as Module1::CAPTIONDIR; raises error 5 for a dot in a folder before its name.
Text FolderOfDiary(TextView path);

namespace Module1
{

/// The folder that belongs to a diary: C:\X\prova for C:\X\ZelviaFile\prova.zlv. The name ends at the first dot of the
/// whole path; a dot in a folder before it is reported as error 5, and the result is empty.
Text CAPTIONDIR(TextView path);

/// 0 when both paths are under the same "ZelviaFile" folder, else not 0.
i16 CAPTIONPATH(TextView a, TextView b);

/// Writes NomeTabellaAttiva to the `nometab` of CartellaDiario.
void SalvaNomeTabella();

/// Reads it back; a missing file is silent and leaves NomeTabellaAttiva as it is.
void CaricaNomeTabella();

} // namespace Module1
} // namespace zelvia
