// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableModel.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "core/ValueFile.h"
#include "diary/FileForms.h"

namespace zelvia::Module1
{
namespace
{

constexpr int kRows = 31;

/// Hands the fifteen values of a row to `visit`, in the order of the file.
template <typename Visitor>
void VisitRow(int row, Visitor&& visit)
{
    visit(TabGiorno[row]);
    visit(TabKm[row]);
    visit(TabMetri[row]);
    visit(TabOre[row]);
    visit(TabMinuti[row]);
    visit(TabSecondi[row]);
    visit(TabMediaMinuti[row]);
    visit(TabMediaSecondi[row]);
    visit(TabMediaMillesimi[row]);
    visit(TabAndatura[row]);
    visit(TabFondo[row]);
    visit(TabRipetVolte[row]);
    visit(TabRipetDistanza[row]);
    visit(TabRipetQuante[row]);
    visit(TabRipetTempi[row]);
}

} // namespace

void AzzeraTabella()
{
    Trap(kBareTitle, [] {
        for (int row = 1; row <= kRows; ++row) {
            VisitRow(row, [](auto& value) { value = {}; });
            TabGiorno[row] = row;
        }
        TabDataInizio = DateValue("01/01/2007");
    });
}

bool ScriviTabella(TextView path)
{
    bool written = false;
    Trap(kBareTitle, [&] {
        ValueWriter file(path);
        for (int row = 1; row <= kRows; ++row) {
            VisitRow(row, [&](const auto& value) { file.Write(value); });
        }
        file.Write(TabDataInizio);
        file.Close();
        written = true;
    });
    return written;
}

void LeggiTabella(TextView path)
{
    Trap(kBareTitle, [&] {
        ValueReader file(path);
        for (int row = 1; row <= kRows; ++row) {
            VisitRow(row, [&](auto& value) { file.Input(value); });
        }
        file.Input(TabDataInizio);
    });
}

} // namespace zelvia::Module1

namespace zelvia
{

std::vector<ValueKind> TableForm()
{
    std::vector<ValueKind> form;
    for (int row = 1; row <= Module1::kRows; ++row) {
        Module1::VisitRow(row, [&](const auto& value) { form.push_back(KindOf(value)); });
    }
    form.push_back(KindOf(Module1::TabDataInizio));
    return form;
}

} // namespace zelvia
