// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteModel.h"

#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/Module1.h"

namespace zelvia::Module1
{

PerRoute<Text> NomiPercorso;
PerRoute<i32> DistanzePercorso;
PerStretch<Text> TrattoDescrizione;
PerStretch<i32> TrattoKm;
PerStretch<i32> TrattoMetri;

namespace
{

constexpr int kRoutes = 200;
constexpr int kStretches = 20;

Text RouteFile()
{
    return CartellaDiario + "\\ListePercorso";
}

/// Hands the 62 values of a route to `visit`, in the order of the file.
template <typename Visitor>
void VisitRoute(int route, Visitor&& visit)
{
    visit(NomiPercorso[route]);
    visit(DistanzePercorso[route]);
    for (int stretch = 1; stretch <= kStretches; ++stretch) {
        visit(TrattoDescrizione[route][stretch]);
        visit(TrattoKm[route][stretch]);
        visit(TrattoMetri[route][stretch]);
    }
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

void AzzeraPercorso(i16 numero)
{
    Trap(kBareTitle, [&] { BlankRoute(numero.value()); });
}

void SalvaPercorsi()
{
    Trap(kBareTitle, [] {
        ValueWriter file(RouteFile());
        for (int route = 1; route <= kRoutes; ++route) {
            VisitRoute(route, [&](const auto& value) { file.Write(value); });
        }
        file.Close();
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
        [](const ErroreRunTime& error) {
            MsgBox(Text(kBareTitle) + error.Description() + " Liste Percorso", MsgButtons::OK);
        });
}

} // namespace zelvia::Module1
