// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the diaries of thirty years and works out every figure over them, against reading the same bytes line by line.
#include "bench/Measure.h"
#include "core/Files.h"
#include "diary/Fields.h"
#include "diary/Module1.h"
#include "tools/years/AllDiaries.h"
#include "tools/years/Bests.h"
#include "tools/years/Goals.h"
#include "tools/years/Periods.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace
{

namespace fs = std::filesystem;
using namespace zelvia;
using namespace zelvia::bench;

constexpr int kFirst = 1997;
constexpr int kYears = 30;
constexpr int kRounds = 20;

/// Thirty years of the diary in memory.
void WriteYears(const fs::path& folder)
{
    for (int year = kFirst; year < kFirst + kYears; ++year) {
        for (int day = 1; day <= 366; ++day) {
            Module1::Giorni[day].Data = CalendarDate(year, 1, 1).PlusDays(day - 1);
        }
        Module1::SalvaDiario(SystemPath((folder / (std::to_string(year) + ".zlv")).string()));
    }
}

std::size_t ReadLines(const fs::path& folder)
{
    std::size_t read = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        read += BytesByLines(entry.path());
    }
    return read;
}

/// Every figure over all years.
std::size_t WorkOut(const AllDiaries& all)
{
    const CalendarDate today(kFirst + kYears - 1, 5, 20);
    const std::vector<DiaryDay> days = all.Days();
    std::size_t count = LoadOf(all, today).size() + PacesByRoute(days).size() + BestsByDistance(days).size() +
                        BestsByRoute(days).size() + WeightsByMonth(days).size();
    for (const DiaryYear& year : all.years) {
        count += WeeksOf(days, year.year).size() + MonthsOf(days, year.year).size() +
                 CurveOf(days, year.year, LastKnownDay(days, year.year, today)).size();
        count += StandingOf(days, year.year, 1500, today).done > 0 ? 1U : 0U;
    }
    return count;
}

void Measure(const std::string& name, const fs::path& folder)
{
    const fs::path diaries = folder / "ZelviaFile";
    WriteYears(diaries);
    std::size_t count = 0;
    const Samples read = Alternate(
        kRounds, [&] { return MillisecondsOf([&] { count += WorkOut(ReadAllDiaries(folder)); }); },
        [&] { return MillisecondsOf([&] { count += ReadLines(diaries); }); });
    PrintMedians(("30 years against getline, " + name).c_str(), read, "ms", "ratio <= 1.5, 500 ms");
    if (ReadAllDiaries(folder).years.size() != kYears || count == 0) {
        std::cerr << "years_bench: not all years were read\n";
        std::exit(1);
    }
}

} // namespace

/// Takes the sample diary and a folder to write into.
int main(int argc, char* argv[])
{
    if (argc < 3) {
        return 2;
    }
    const fs::path folder = fs::path(argv[2]) / "anni";
    fs::create_directories(folder / "ZelviaFile");
    Module1::CaricaDiario(SystemPath(argv[1]));
    Measure("sample", folder);
    for (int day = 1; day <= 366; ++day) {
        VisitDiaryValues(Module1::Giorni[day], [](auto& value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
                value = "Km 12  -  0:04:35  -  4:35";
            } else if constexpr (!std::is_same_v<std::decay_t<decltype(value)>, CalendarDate>) {
                value = 1234;
            }
        });
    }
    Measure("full", folder);
    return 0;
}
