// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarCells.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"

#include <array>
#include <concepts>
#include <type_traits>
#include <variant>

namespace zelvia::Module1
{

using CalendarGrid::Casella;
using CalendarGrid::DataOf;

namespace
{

using Colonna = std::variant<ColonnaGare<i16>*, ColonnaGare<i32>*, ColonnaGare<Text>*>;

const std::array<Colonna, CalendarGrid::kColumns> kColonne = {
    &GiornoGara,   &MeseGara,  &AnnoGara, &Gara,       &Localita,    &KmGara,    &MetriGara,
    &Partecipanti, &Risultato, &OreGara,  &MinutiGara, &SecondiGara, &Categoria, &RisultatoCat};

/// Hands the column's value of a row to `visit`.
template <typename Visitor>
auto VisitValue(Casella casella, int riga, Visitor&& visit)
{
    return std::visit([&](auto* colonna) { return visit((*colonna)[riga]); }, kColonne[IndexOf(casella)]);
}

template <typename Value>
constexpr bool kIsText = std::same_as<std::remove_cvref_t<Value>, Text>;

bool IsDate(Casella casella)
{
    return casella == Casella::Giorno || casella == Casella::Mese || casella == Casella::Anno;
}

} // namespace

double NumeroCasella(Casella casella, TextView testo)
{
    return Val(DataOf(casella).formato == CalendarGrid::Formato::Migliaia ? SenzaPuntoMigliaia(testo) : Text(testo));
}

Text TestoCasella(Casella casella, int riga)
{
    return VisitValue(casella, riga, [&](const auto& value) -> Text {
        if constexpr (kIsText<decltype(value)>) {
            return value;
        } else {
            if (value == 0 || (IsDate(casella) && !(GiornoGara[riga] > 0))) {
                return {};
            }
            return Formattato(PlainText(value), DataOf(casella).formato);
        }
    });
}

void AssegnaCasella(Casella casella, int riga, TextView testo)
{
    VisitValue(casella, riga, [&](auto& value) {
        if constexpr (kIsText<decltype(value)>) {
            value = testo;
        } else {
            value = RoundTo<std::remove_cvref_t<decltype(value)>>(NumeroCasella(casella, testo));
        }
    });
}

bool CasellaDiversa(Casella casella, int riga, TextView testo)
{
    return VisitValue(casella, riga, [&](const auto& value) {
        if constexpr (kIsText<decltype(value)>) {
            return !SameText(value, testo);
        } else {
            return NumeroCasella(casella, testo) != static_cast<double>(value.value());
        }
    });
}

} // namespace zelvia::Module1
