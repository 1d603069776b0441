// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The merge of two versions of a file, and the names of conflict copies.
#include "Harness.h"
#include "diary/FileForms.h"
#include "tools/merge/Merge.h"

#include <algorithm>

using namespace zelvia;
using fuzz::Require;

namespace
{

using Kind = zelvia::FileKind;

/// The pieces of a line of the input, which "|" separates.
std::vector<Text> PiecesOf(const Text& line)
{
    std::vector<Text> pieces(1);
    for (const char c : line) {
        if (c == '|') {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

/// A list of the pieces.
Text ListOf(const std::vector<Text>& pieces)
{
    Text bytes;
    for (const Text& piece : pieces) {
        bytes += piece + "\r\n";
    }
    return bytes;
}

/// A blank file of that form, but for the pieces: two bytes for the line, then what stands in it.
Text FormOf(const std::vector<ValueKind>& form, const std::vector<Text>& pieces)
{
    std::vector<Text> lines;
    for (const ValueKind kind : form) {
        lines.emplace_back(kind == ValueKind::Quoted ? "\"\"" : "0");
    }
    for (const Text& piece : pieces) {
        if (piece.size() > 2) {
            const std::size_t line = static_cast<unsigned char>(piece[0]) * 256U + static_cast<unsigned char>(piece[1]);
            lines[line % lines.size()] = piece.substr(2);
        }
    }
    return ListOf(lines);
}

Text FileOf(Kind kind, const Text& line)
{
    switch (kind) {
    case Kind::Routes: return FormOf(RoutesForm(), PiecesOf(line));
    case Kind::Races: return FormOf(CalendarForm(), PiecesOf(line));
    case Kind::Table: return FormOf(TableForm(), PiecesOf(line));
    default: return ListOf(PiecesOf(line));
    }
}

Text Merged(Kind kind, const std::optional<Text>& base, const Text& here, const Text& there)
{
    std::vector<SideChange> changes = CompareSides(kind, base, here, there);
    for (const SideChange& change : changes) {
        Require(change.here != 0 || change.there != 0, "a change is of a part that is somewhere");
        Require(change.taken == (change.side == Side::There), "what has changed there alone is taken");
    }
    return MergedFile(kind, base, here, there, changes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    constexpr Kind kinds[] = {Kind::List, Kind::Routes, Kind::Races, Kind::Table};
    const Kind kind = kinds[data[0] % 4];
    const std::vector<Text> lines = fuzz::InputLines(data + 1, size - 1, 4);
    const Text base = FileOf(kind, lines[0]);
    const Text a = FileOf(kind, lines[1]);
    const Text b = FileOf(kind, lines[2]);
    if (IsWhole(kind, base) && IsWhole(kind, a) && IsWhole(kind, b)) {
        Require(Merged(kind, base, a, base) == a, "what has changed here stays");
        Require(Merged(kind, base, a, a) == a, "what has changed alike stays");
        const Text merged = Merged(kind, base, a, b);
        Require(IsWhole(kind, merged), "the merged file is whole");
        Require(kind == Kind::List || Merged(kind, std::nullopt, a, a) == a, "a file is its own version");
        Require(FindBase(kind, {base}, a, b) == std::optional<std::size_t>(0), "the only copy is the base");
    }
    const auto original = OriginalByMark(lines[3]);
    Require(!original || (!original->empty() && original->size() < lines[3].size()), "a name becomes shorter");
    YearOfDiary(lines[3]);
    return 0;
}
