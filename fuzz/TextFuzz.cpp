// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The small text routines of the table editor and of the paths.
#include "Harness.h"
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/TextRoutines.h"
#include "diary/Workspace.h"

using namespace zelvia;
using namespace zelvia::fuzz;
using namespace zelvia::Module1;

namespace
{

void CheckEditor(const Text& text)
{
    Text once = text;
    ControlloMaiuscole(once);
    Require(SameText(once, text), "nothing but the case changes");
    Text twice = once;
    Require(ControlloMaiuscole(twice) == once, "a second time changes nothing");
    if (InStr(text, ".") == 0) {
        const Text dotted = ConPuntoMigliaia(text);
        const bool longEnough = text.size() >= 4;
        Require(dotted.size() == text.size() + (longEnough ? 1 : 0), "a dot from four characters on");
        Require(SenzaPuntoMigliaia(dotted) == text, "a dot that was put is taken away again");
        Require(ConPuntoMigliaia(dotted) == dotted, "a dot is put once");
    }
}

void CheckPath(const Text& path)
{
    const Boxes boxes;
    const Text folder = CAPTIONDIR(path);
    boxes.RequireReport("CAPTIONDIR - ERRORE : ", {Errore::ArgomentoNonValido});
    Require(boxes.Shown().empty() || folder.empty(), "no folder with a report");
    Require(CAPTIONPATH(path, path) == 0 && boxes.Shown().size() <= 1, "a path lies where it lies");
    const Text name = NomeSenzaCartella(path);
    Require(name.find('\\') == Text::npos && InStr(path, name) > 0, "a name without its folder");
    RequireError(RaisedBy([&] { NativePath(path); }),
                 {path.find('\0') == Text::npos ? Errore::PercorsoNonTrovato : Errore::NomeFileNonValido});
}

void CheckCharacters(const Text& text)
{
    Require(FromUtf8(ToUtf8(text)) == text, "every byte survives the way to the screen and back");
    const Text read = FromUtf8(text); // Whatever bytes they are.
    Require(read.size() <= text.size() && FromUtf8(ToUtf8(read)) == read, "malformed bytes become readable ones");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = InputText(data, size);
    CheckEditor(text);
    CheckPath(text);
    CheckCharacters(text);
    return 0;
}
