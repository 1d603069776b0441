// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Workspace.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/Module1.h"

#include <algorithm>

namespace zelvia
{

Text ReadPointer(TextView path)
{
    ValueReader file(path);
    Text value;
    file.Input(value);
    std::replace(value.begin(), value.end(), '/', '\\');
    return value;
}

void WritePointer(TextView path, TextView value)
{
    ValueWriter file(path);
    file.Write(value);
    file.Close();
}

Text NomeSenzaCartella(TextView path)
{
    const auto slash = InStrRev(path, "\\");
    return slash == 0 ? Text() : NomeSenzaEstensione(Mid(path, slash + 1));
}

Text NomeSenzaEstensione(TextView path)
{
    const auto dot = InStrRev(path, ".");
    return dot == 0 ? Text() : Left(path, dot - 1);
}

Text FolderOfDiary(TextView path)
{
    const auto word = InStr(path, kDiaryFolder);
    if (word == 0) {
        return NomeSenzaEstensione(path);
    }
    // The word and the backslash after it.
    const auto name = word + Len(kDiaryFolder) + 1;
    return Left(path, word - 1) + Mid(path, name, InStr(path, ".") - name);
}

namespace Module1
{

Text CAPTIONDIR(TextView path)
{
    return TrapValue("CAPTIONDIR - ERRORE : ", Text(), [&] { return FolderOfDiary(path); });
}

i16 CAPTIONPATH(TextView a, TextView b)
{
    return TrapValue("CAPTIONPATH - ERRORE : ", i16(0), [&] {
        const auto prefix = [](TextView path) { return Left(path, InStr(path, kDiaryFolder) + Len(kDiaryFolder) - 1); };
        return TextCompare(prefix(b), prefix(a));
    });
}

namespace
{

Text TablePointer()
{
    return CartellaDiario + "\\nometab";
}

} // namespace

void SalvaNomeTabella()
{
    Trap(kBareTitle, [] { WritePointer(TablePointer(), NomeTabellaAttiva); });
}

void CaricaNomeTabella()
{
    TrapWith([] { NomeTabellaAttiva = ReadPointer(TablePointer()); },
             [](const ErroreRunTime& error) {
                 if (error.Number() != Errore::FileNonTrovato) {
                     ReportError(kBareTitle, error);
                 }
             });
}

} // namespace Module1
} // namespace zelvia
