// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Cell.h"

#include "core/Conversions.h"
#include "core/TextRoutines.h"

#include <concepts>

namespace zelvia
{

using namespace Module1;

namespace
{

template <typename Value>
Value Taken(TextView text, CellFormat format)
{
    if constexpr (std::same_as<Value, Text>) {
        return Text(text);
    } else {
        return RoundTo<Value>(CellNumber(text, format));
    }
}

} // namespace

Text Formatted(TextView text, CellFormat format)
{
    Text formatted(text);
    if (text.empty()) {
        return formatted;
    }
    switch (format) {
    case CellFormat::TwoDigits: return Format(Val(text), "00");
    case CellFormat::ThreeDigits: return Format(Val(text), "000");
    case CellFormat::Capitals: return ControlloMaiuscole(formatted);
    case CellFormat::Thousands: return ConPuntoMigliaia(text);
    case CellFormat::Plain: break;
    }
    return formatted;
}

double CellNumber(TextView text, CellFormat format)
{
    return Val(format == CellFormat::Thousands ? SenzaPuntoMigliaia(text) : Text(text));
}

Text CellText(const Cell& cell, CellFormat format)
{
    return std::visit(
        [&]<typename Value>(const Value* value) -> Text {
            if constexpr (std::same_as<Value, Text>) {
                return *value;
            } else {
                return *value == 0 ? Text() : Formatted(PlainText(*value), format);
            }
        },
        cell);
}

void SetCell(const Cell& cell, TextView text, CellFormat format)
{
    std::visit([&]<typename Value>(Value* value) { *value = Taken<Value>(text, format); }, cell);
}

bool CellHolds(const Cell& cell, TextView text, CellFormat format)
{
    return std::visit([&]<typename Value>(const Value* value) { return Taken<Value>(text, format) == *value; }, cell);
}

} // namespace zelvia
