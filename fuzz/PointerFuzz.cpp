// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pointer files: nometab through its routines, nomeload through the reader used at the start.
#include "Harness.h"
#include "Reference.h"
#include "diary/Module1.h"
#include "diary/Workspace.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;
using namespace zelvia::Module1;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Scratch& scratch = Scratch::Instance();
    auto expected = Reference(InputText(data, size)).NextText();
    if (expected) {
        std::replace(expected->begin(), expected->end(), '/', '\\');
    }
    CartellaDiario = scratch.Folder();

    scratch.Write("nomeload", InputText(data, size));
    Text read;
    Require(RaisedBy([&] { read = ReadPointer(scratch.Path("nomeload")); }) == (expected ? 0 : Errore::FineFile),
            "the error of the pointer");
    Require(read == expected.value_or(Text()), "the value of the pointer");

    scratch.Write("nometab", InputText(data, size));
    NomeTabellaAttiva = "before";
    const Boxes boxes;
    CaricaNomeTabella();
    boxes.RequireReport("ERRORE : ", {Errore::FineFile});
    Require(boxes.Shown().empty() == expected.has_value(), "the report of the pointer");
    Require(NomeTabellaAttiva == expected.value_or("before"), "the active table");

    if (expected && !HasQuote(*expected)) {
        SalvaNomeTabella();
        Require(scratch.Read("nometab") == "\"" + *expected + "\"\r\n", "the pointer as a file");
        NomeTabellaAttiva.clear();
        CaricaNomeTabella();
        Require(NomeTabellaAttiva == *expected && boxes.Shown().empty(), "a pointer that was written is read again");
    }
    return 0;
}
