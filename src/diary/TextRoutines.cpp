// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TextRoutines.h"

#include "core/Conversions.h"

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

Text Formattato(TextView testo, Formato formato)
{
    Text formattato(testo);
    if (testo.empty()) {
        return formattato;
    }
    switch (formato) {
    case Formato::DueCifre: return Format(Val(testo), "00");
    case Formato::TreCifre: return Format(Val(testo), "000");
    case Formato::Maiuscole: return ControlloMaiuscole(formattato);
    case Formato::Migliaia: return ConPuntoMigliaia(testo);
    case Formato::Nessuno: break;
    }
    return formattato;
}

} // namespace zelvia::Module1
