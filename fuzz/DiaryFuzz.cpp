// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The diary. The input is its beginning, so that the days after it need neither be blanked nor written.
#include "Harness.h"
#include "core/ValueFile.h"
#include "diary/Fields.h"
#include "diary/Module1.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

constexpr const char* kFile = "prova.zlv";
int daysInInput = 0;

template <typename Visitor>
void VisitDays(Visitor&& visit)
{
    for (int slot = 1; slot <= daysInInput; ++slot) {
        VisitDiaryValues(Module1::Giorni[slot], visit);
    }
}

void BlankDays()
{
    VisitDays([](auto& value) { value = {}; });
}

/// What SalvaDiario writes of those days.
void WriteDays()
{
    ValueWriter file(Scratch::Instance().Path(kFile));
    VisitDays([&](const auto& value) { file.Write(value); });
    file.Close();
}

/// The later days are not in the file, which its reader rightly reports.
void ReadBack()
{
    const Boxes boxes;
    Module1::CaricaDiario(Scratch::Instance().Path(kFile));
    boxes.RequireReport("**ERRORE : ", {Errore::FineFile});
}

bool NoQuotes()
{
    bool quotes = false;
    VisitDays([&](const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
            quotes = quotes || HasQuote(value);
        }
    });
    return !quotes;
}

void RequireStable()
{
    WriteDays();
    const Text first = Scratch::Instance().Read(kFile);
    BlankDays();
    ReadBack();
    WriteDays();
    Require(Scratch::Instance().Read(kFile) == first, "a diary that was read is written again as it was");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A value takes a byte at least, a day 136 values, and the current day counts.
    daysInInput = std::min(static_cast<int>(size / 136) + 1, 366);
    BlankDays();
    Scratch::Instance().Write(kFile, InputText(data, size));
    {
        const Boxes boxes;
        Module1::CaricaDiario(Scratch::Instance().Path(kFile));
        boxes.RequireReport("**ERRORE : ", kDamage);
    }
    if (NoQuotes()) {
        RequireStable();
    }
    return 0;
}
