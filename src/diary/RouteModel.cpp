// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteModel.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/FileForms.h"
#include "diary/Journal.h"
#include "diary/Module1.h"

namespace zelvia::Module1
{
namespace
{

constexpr int kRoutes = 200;

Text RouteFile()
{
    return CartellaDiario + "\\ListePercorso";
}

void BlankRoute(int route)
{
    VisitRoute(route, [](auto& value) { value = {}; });
}

} // namespace

void AzzeraPercorsi()
{
    Trap(kBareTitle, [] {
        for (int route = 1; route <= kRoutes; ++route) {
            BlankRoute(route);
        }
    });
}

void AzzeraPercorso(i16 number)
{
    Trap(kBareTitle, [&] { BlankRoute(number.value()); });
}

void SalvaPercorsi()
{
    Trap(kBareTitle, [] {
        ValueWriter file(RouteFile());
        for (int route = 1; route <= kRoutes; ++route) {
            VisitRoute(route, [&](const auto& value) { file.Write(value); });
        }
        file.Close();
        Journal::Instance().Saved(RecordKind::Route);
    });
}

void CaricaPercorsi()
{
    TrapWith(
        [] {
            ValueReader file(RouteFile());
            for (int route = 1; route <= kRoutes; ++route) {
                VisitRoute(route, [&](auto& value) { file.Input(value); });
            }
        },
        [](const ErroreRunTime& error) { MsgBox(Messages::kRoutesNotRead, error.Description()); });
}

} // namespace zelvia::Module1

namespace zelvia
{

using namespace Module1;

std::vector<ValueKind> RoutesForm()
{
    std::vector<ValueKind> form;
    for (int route = 1; route <= kRoutes; ++route) {
        VisitRoute(route, [&](const auto& value) { form.push_back(KindOf(value)); });
    }
    return form;
}

RouteLength LengthOf(i32 km, i32 metres)
{
    constexpr int metresPerKm = 1000;
    if (metres < metresPerKm) {
        return {km, metres};
    }
    const i32 whole = metres.value() / metresPerKm;
    return {km + whole, metres - whole * metresPerKm};
}

std::optional<i16> RoutePlace(TextView name)
{
    bool free = false;
    for (i16 i = 1; i <= PerRoute<Text>::kLast; i += 1) {
        if (SameText(NomiPercorso[i], name)) {
            return i;
        }
        free = free || NomiPercorso[i].empty();
    }
    return free ? std::optional<i16>(0) : std::nullopt;
}

i16 LowestFreePlace()
{
    for (i16 i = 1; i <= PerRoute<Text>::kLast; i += 1) {
        if (NomiPercorso[i].empty()) {
            return i;
        }
    }
    return 0;
}

} // namespace zelvia
