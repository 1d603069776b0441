// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Help.h"

#include "core/Files.h"
#include "core/RunTimeError.h"

#include <array>
#include <cstdio>

namespace zelvia
{

void WinHelp(TextView file, int /*command*/)
{
    // A compressed help file of Qt is a database of this kind.
    constexpr std::string_view signature("SQLite format 3\0", 16);
    std::array<char, signature.size()> head{};
    const FileHandle help = OpenFile(file, OpenMode::Input);
    const std::size_t got = std::fread(head.data(), 1, head.size(), help.get());
    if (std::string_view(head.data(), got) != signature) {
        throw ErroreRunTime(Errore::Interno, Text("Il file della Guida è danneggiato"_t));
    }
}

} // namespace zelvia
