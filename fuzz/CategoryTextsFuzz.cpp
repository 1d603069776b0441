// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of distances and repetitions: six numbers of a day, followed by a row to take apart.
#include "Harness.h"
#include "Reference.h"
#include "diary/CategoryTexts.h"

#include <array>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

constexpr auto kNone = Text::npos;

/// From `first` up to `last`, where the text holds both in that order.
std::optional<Text> Between(const Text& row, std::size_t first, std::size_t last)
{
    if (first == kNone || last == kNone || last < first) {
        return std::nullopt;
    }
    return row.substr(first + 1, last - first - 1);
}

Text Before(const Text& row, char mark)
{
    const auto at = row.find(mark);
    return at == kNone ? Text() : row.substr(0, at);
}

/// A missing mark counts as just before the text.
Text Behind(const Text& row, std::size_t mark)
{
    return row.substr(mark == kNone ? 0 : mark + 1);
}

/// One of the six routines and its piece, cut by hand; none where there is no such piece.
struct Routine {
    i16 (*piece)(TextView);
    std::optional<Text> (*cut)(const Text& row);
};

constexpr std::array<Routine, 6> kRoutines = {{
    {KmPart, [](const Text& row) { return std::optional(Before(row, ',')); }},
    {MetresPart, [](const Text& row) { return std::optional(Behind(row, row.find(','))); }},
    {TimesPart, [](const Text& row) { return std::optional(Before(row, 'x')); }},
    {DistancePart, [](const Text& row) { return Between(row, row.rfind('x'), row.rfind('@')); }},
    {MinutesPart, [](const Text& row) { return Between(row, row.rfind('@'), row.rfind(':')); }},
    {SecondsPart, [](const Text& row) { return std::optional(Behind(row, row.rfind(':'))); }},
}};

void CheckPiece(const Routine& routine, const Text& row)
{
    i16 number;
    const int error = RaisedBy([&] { number = routine.piece(row); });
    const auto piece = routine.cut(row);
    const auto expected = piece ? PlainShort(*piece) : std::nullopt;
    Require(error == (!piece ? Errore::ArgomentoNonValido : !expected ? Errore::Overflow : 0), "the error of a piece");
    Require(error != 0 || number == *expected, "the number of a piece");
}

/// A text gives back the numbers it was built from.
void CheckReturn(const RecordGiorno& day)
{
    const Text distance = KmText(day);
    Require(KmPart(distance) == day.Km && MetresPart(distance) == day.Metri, "the distance comes back");
    const Text repetitions = RepetitionsText(day);
    Require(TimesPart(repetitions) == day.Ripetizioni && DistancePart(repetitions) == day.RipetizioniDistanza,
            "the repetitions and their distance come back");
    Require(MinutesPart(repetitions) == day.RipetizioniQuante && SecondsPart(repetitions) == day.RipetizioniTempi,
            "the time of the repetitions comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes input(data, size);
    RecordGiorno day;
    for (i16 RecordGiorno::*number :
         {&RecordGiorno::Km, &RecordGiorno::Metri, &RecordGiorno::Ripetizioni, &RecordGiorno::RipetizioniDistanza,
          &RecordGiorno::RipetizioniQuante, &RecordGiorno::RipetizioniTempi}) {
        day.*number = input.Take<std::int16_t>();
    }
    CheckReturn(day);
    const Text row = input.Rest();
    for (const Routine& routine : kRoutines) {
        CheckPiece(routine, row);
    }
    return 0;
}
