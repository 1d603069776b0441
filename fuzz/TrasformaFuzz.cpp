// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sorted list of runs: each line of the input is a time taken.
#include "Harness.h"
#include "diary/ListaOrdinata.h"

#include <algorithm>
#include <array>
#include <cstdio>

using namespace zelvia;
using namespace zelvia::fuzz;

namespace
{

constexpr std::size_t kRuns = 12;

class Rows : public TimesBox
{
public:
    void AddLine(TextView riga) override { rows.emplace_back(riga); }
    void Select(int indice) override { selected = indice; }

    std::vector<Text> rows;
    int selected = -2;
};

/// Hours, minutes and seconds of a row such as "   1°   0:45:00   4:30   01/03/2008".
std::array<int, 3> TimeOf(const Text& row)
{
    std::array<int, 3> time{};
    const auto degree = row.find("°"_t);
    Require(degree != Text::npos &&
                std::sscanf(row.c_str() + degree + 1, "%d:%d:%d", &time[0], &time[1], &time[2]) == 3,
            "a row has its place and its time");
    return time;
}

void RequireReports(const Boxes& boxes)
{
    for (const Text& box : boxes.Shown()) {
        bool foreseen = false;
        for (const int error : {Errore::ArgomentoNonValido, Errore::Overflow}) {
            const Text report = std::to_string(error) + " " + DescriptionOf(error);
            foreseen = foreseen || box == "Trasforma - ERRORE : " + report || box == "Ordina - ERRORE : " + report;
        }
        Require(foreseen, "a report that is foreseen");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Boxes boxes;
    static ListaOrdinata list;
    list = ListaOrdinata();
    list.CreaLista();
    i16 run = 0;
    for (const Text& time : InputLines(data, size, kRuns)) {
        run += 1;
        list.LOgiorno(run);
        list.LOtempo(time);
        list.LOmedia(run == 1 ? "4:30" : "10:05");
        list.LOdata(CalendarDate(2008, 3, 1));
        list.Trasforma();
        list.Incrementa();
    }
    list.Ordina();
    const bool sorted = boxes.Shown().empty() || !boxes.Shown().back().starts_with("Ordina");
    Rows rows;
    list.NuovaListalst(&rows);
    list.RiempiListalst();
    list.Posizione();
    RequireReports(boxes);
    Require(rows.rows.size() <= kRuns && rows.selected >= -1 && rows.selected < static_cast<int>(kRuns),
            "no more rows than runs");
    for (std::size_t i = 1; sorted && i < rows.rows.size(); ++i) {
        Require(TimeOf(rows.rows[i - 1]) <= TimeOf(rows.rows[i]), "the rows in order of their times");
    }
    return 0;
}
