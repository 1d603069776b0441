// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar.
#include "Harness.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;
using namespace zelvia::Module1;

namespace
{

bool NoQuotes()
{
    const auto quoted = [](const RaceValues<Text>& column) {
        return std::any_of(column.begin(), column.end(), HasQuote);
    };
    return !quoted(Gara) && !quoted(Localita) && !quoted(Categoria);
}

void RequireReport(const Boxes& boxes)
{
    boxes.RequireReport("ERRORE : ", kDamage);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CartellaDiario = Scratch::Instance().Folder();
    ReadAndReturn({"CalendarioGare", AzzeraCalendario, LeggiCalendario, ScriviCalendario, NoQuotes, RequireReport, 4},
                  data, size);
    return 0;
}
