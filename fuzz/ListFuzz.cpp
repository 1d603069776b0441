// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A selection list: every value of the file is an entry.
#include "Harness.h"
#include "Reference.h"
#include "diary/SelectionLists.h"

#include <algorithm>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

struct Loaded {
    std::vector<Text> entries = {"before"};
    int error = 0;

    bool operator==(const Loaded&) const = default;
};

Loaded Load()
{
    Loaded loaded;
    loaded.error = RaisedBy([&] { ReadEntries(Scratch::Instance().Path("Percorso.lsx"), loaded.entries); });
    return loaded;
}

Loaded Expected(const Text& bytes)
{
    Loaded expected{{}, 0};
    Reference reference(bytes);
    while (!reference.AtEnd()) {
        const auto entry = reference.NextText();
        if (!entry) {
            expected.error = Errore::FineFile;
            break;
        }
        expected.entries.push_back(*entry);
    }
    return expected;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Scratch& scratch = Scratch::Instance();
    scratch.Write("Percorso.lsx", InputText(data, size));
    const Loaded loaded = Load();
    Require(loaded == Expected(InputText(data, size)), "the entries of the list");
    if (std::none_of(loaded.entries.begin(), loaded.entries.end(), HasQuote)) {
        WriteEntries(scratch.Path("Percorso.lsx"), loaded.entries);
        Require(Load() == Loaded{loaded.entries, 0}, "a list that was written is read again");
    }
    return 0;
}
