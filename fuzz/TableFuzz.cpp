// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A training table.
#include "Harness.h"
#include "diary/TableModel.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;
using namespace zelvia::Module1;

namespace
{

constexpr const char* kFile = "Base.tab";

bool NoQuotes()
{
    const auto quoted = [](const PlanColumn<Text>& column) {
        return std::any_of(column.begin(), column.end(), HasQuote);
    };
    return !quoted(TabAndatura) && !quoted(TabFondo);
}

void RequireReport(const Boxes& boxes)
{
    boxes.RequireReport("ERRORE : ", kDamage);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto read = [] { LeggiTabella(Scratch::Instance().Path(kFile)); };
    const auto write = [] { ScriviTabella(Scratch::Instance().Path(kFile)); };
    ReadAndReturn({kFile, AzzeraTabella, read, write, NoQuotes, RequireReport, 2}, data, size);
    return 0;
}
