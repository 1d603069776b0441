// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The descriptions of the routes.
#include "Harness.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;
using namespace zelvia::Module1;

namespace
{

bool NoQuotes()
{
    for (int route = 1; route <= 200; ++route) {
        const auto& stretches = TrattoDescrizione[route];
        if (HasQuote(NomiPercorso[route]) || std::any_of(stretches.begin(), stretches.end(), HasQuote)) {
            return false;
        }
    }
    return true;
}

/// The reader's own form: the description alone, and the name of the file.
void RequireReport(const Boxes& boxes)
{
    Require(boxes.Shown().size() <= 1, "one report at most");
    const auto isReport = [&](int error) {
        return boxes.Shown().front() == "ERRORE : " + DescriptionOf(error) + " Liste Percorso";
    };
    Require(boxes.Shown().empty() || std::any_of(kDamage.begin(), kDamage.end(), isReport), "the report of the damage");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CartellaDiario = Scratch::Instance().Folder();
    ReadAndReturn({"ListePercorso", AzzeraPercorsi, CaricaPercorsi, SalvaPercorsi, NoQuotes, RequireReport, 16}, data,
                  size);
    return 0;
}
