// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What finds damage in a file and mends it. The input is the damage: a kind of file and what is done to a whole one.
#include "Harness.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "tools/strumenti/FileCheck.h"

#include <algorithm>
#include <functional>
#include <vector>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

struct CheckedKind {
    const char* name;
    CheckFile check;
    std::string whole;
    std::function<void()> read; ///< As the program reads it.
};

FileReport CheckDiaryOf2028(const CheckedFile& file)
{
    return CheckDiary(file, 2028);
}

/// The file that a check makes of nothing.
std::string MadeOfNothing(const CheckFile& check)
{
    return check({"nothing", "", true}).mended.value();
}

const std::vector<CheckedKind>& Kinds()
{
    static const std::vector<CheckedKind> kinds = [] {
        const Scratch& scratch = Scratch::Instance();
        Module1::CartellaDiario = scratch.Folder();
        return std::vector<CheckedKind>{
            {"diario.zlv", CheckDiaryOf2028, MadeOfNothing(CheckDiaryOf2028),
             [] { Module1::CaricaDiario(Scratch::Instance().Path("diario.zlv")); }},
            {"CalendarioGare", CheckCalendar, BlankCalendar(), [] { Module1::LeggiCalendario(); }},
            {"ListePercorso", CheckRoutes, BlankRoutes(), [] { Module1::CaricaPercorsi(); }},
            {"tabella.tab", CheckTable, MadeOfNothing(CheckTable),
             [] { Module1::LeggiTabella(Scratch::Instance().Path("tabella.tab")); }},
            {"Percorso.lsx", CheckList, "\"Lungofiume\"\r\n\"Citt\xE0\"\r\n", [] {
                 std::vector<Text> entries;
                 ReadEntries(Scratch::Instance().Path("Percorso.lsx"), entries);
             }}};
    }();
    return kinds;
}

/// The place where the line of that number begins.
std::size_t LineAt(const std::string& bytes, std::size_t number)
{
    std::size_t place = 0;
    for (; number > 0 && place < bytes.size(); --number) {
        place = std::min(bytes.find('\n', place), bytes.size() - 1) + 1;
    }
    return place;
}

/// Does one damage to the file; the last of all puts the rest of the input somewhere.
void Damage(std::string& bytes, Bytes& input)
{
    constexpr std::size_t diaryLines = 366 * 136;
    const auto what = input.Take<std::uint8_t>();
    const std::size_t place = LineAt(bytes, input.Take<std::uint16_t>() % diaryLines);
    const std::size_t at = std::min(bytes.size(), place + input.Take<std::uint8_t>() % 16);
    const std::size_t end = LineAt(bytes.substr(place), input.Take<std::uint8_t>()) + place;
    // To put the rest of a long file in order takes long; a diary is ordered day by day.
    const std::size_t leastLeft = bytes.size() > 200'000 || bytes.size() < 4'000 ? 0 : bytes.size() - 4'000;
    switch (what % 8) {
    case 0: bytes.insert(at, 1, '"'); break;
    case 1: bytes.erase(at, 1); break;
    case 2: bytes.erase(place, end - place); break;
    case 3: bytes.insert(place, bytes.substr(place, end - place)); break;
    case 4: bytes.resize(std::max(at, leastLeft)); break;
    case 5: bytes.insert(at, 1, static_cast<char>(input.Take<std::uint8_t>())); break;
    case 6: bytes.replace(at, std::min<std::size_t>(1, bytes.size() - at), 1, static_cast<char>(what)); break;
    default: bytes.insert(at, input.Rest().substr(0, 40)); break;
    }
}

bool AnyOf(const FileReport& report, Remedy remedy)
{
    return std::any_of(report.findings.begin(), report.findings.end(),
                       [&](const Finding& finding) { return finding.remedy == remedy; });
}

/// What is mended at all is mended in one go, and the program reads it.
void RequireMended(const CheckedKind& kind, const std::string& bytes, bool overwrites)
{
    const FileReport report = CheckToTheEnd(kind.check, {kind.name, bytes, overwrites});
    Require(report.mended.has_value(), "a file that is there stays");
    Require(!report.findings.empty() || *report.mended == bytes, "a file without a finding stays as it was");
    const FileReport again = CheckToTheEnd(kind.check, {kind.name, *report.mended, overwrites});
    Require(*again.mended == *report.mended, "one pass mends all");
    Require(!AnyOf(again, Remedy::Sure), "what is sure is mended");
    Require(!overwrites || !AnyOf(again, Remedy::Asked), "what was asked for is mended");
    if (again.findings.empty()) {
        Scratch::Instance().Write(kind.name, *report.mended);
        const Boxes boxes;
        Require(RaisedBy(kind.read) == 0 && boxes.Shown().empty(), "the program reads what is mended");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    const CheckedKind& kind = Kinds()[input.Take<std::uint8_t>() % Kinds().size()];
    std::string bytes = kind.whole;
    const auto how = input.Take<std::uint8_t>();
    const bool overwrites = how < 128;
    for (int count = how % 8; count >= 0; --count) {
        Damage(bytes, input);
    }
    RequireMended(kind, bytes, overwrites);
    return 0;
}
