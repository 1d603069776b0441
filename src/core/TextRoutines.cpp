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

Text SenzaPuntoMigliaia(TextView text)
{
    Text plain(text);
    if (const auto dot = plain.find('.'); dot != Text::npos) {
        plain.erase(dot, 1);
    }
    return plain;
}

Text ConPuntoMigliaia(TextView text)
{
    Text dotted = SenzaPuntoMigliaia(text);
    constexpr std::size_t shortest = 4;
    if (dotted.size() >= shortest) {
        dotted.insert(dotted.size() - 3, 1, '.');
    }
    return dotted;
}

Text ControlloMaiuscole(Text& text)
{
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (IsLetter(text[i - 1]) && IsUpper(text[i])) {
            text[i] = static_cast<char>(text[i] + ('a' - 'A'));
        }
    }
    return text;
}

} // namespace zelvia::Module1
