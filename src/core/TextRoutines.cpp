// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TextRoutines.h"

namespace zelvia::Module1
{
namespace
{

bool IsUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool IsLetter(char c)
{
    return IsUpper(c) || (c >= 'a' && c <= 'z');
}

} // namespace

Text SenzaPuntoMigliaia(TextView testo)
{
    Text plain(testo);
    if (const auto dot = plain.find('.'); dot != Text::npos) {
        plain.erase(dot, 1);
    }
    return plain;
}

Text ConPuntoMigliaia(TextView testo)
{
    Text dotted = SenzaPuntoMigliaia(testo);
    constexpr std::size_t shortest = 4;
    if (dotted.size() >= shortest) {
        dotted.insert(dotted.size() - 3, 1, '.');
    }
    return dotted;
}

Text ControlloMaiuscole(Text& testo)
{
    for (std::size_t i = 1; i < testo.size(); ++i) {
        if (IsLetter(testo[i - 1]) && IsUpper(testo[i])) {
            testo[i] = static_cast<char>(testo[i] + ('a' - 'A'));
        }
    }
    return testo;
}

} // namespace zelvia::Module1
