// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a thousand proposals of a watch's file, from its bytes on, against a plain std::getline loop over the same
// file.
#include "bench/Measure.h"
#include "tools/copies/SafeFiles.h"
#include "tools/watch/DayProposal.h"
#include "tools/watch/FitFile.h"
#include "tools/watchxml/TrackFile.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kFiles = 1000;
constexpr int kRounds = 5;

/// Measures `files` times what `read` makes of the file.
void Measure(const char* name, const std::string& path, int files, WatchFile (*read)(std::string_view bytes),
             const char* figure)
{
    int kilometres = 0;
    const auto propose = [&] {
        for (int i = 0; i < files; ++i) {
            const WatchFile file = read(ReadFile(path));
            kilometres += file.activities.empty() ? 0 : ProposeDay(file.activities.front(), {}).km;
        }
    };
    std::size_t bytes = 0;
    const auto readOnly = [&] {
        for (int i = 0; i < files; ++i) {
            bytes += BytesByLines(path);
        }
    };
    const Samples samples = Alternate(
        kRounds, [&] { return MillisecondsOf(propose); }, [&] { return MillisecondsOf(readOnly); });
    if (kilometres == 0 || bytes == 0) {
        std::cerr << "watch_bench: nothing in " << path << '\n';
        std::exit(1);
    }
    PrintMedians(name, samples, "ms", figure);
}

} // namespace

/// Takes the folder of the watches' files.
int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 2;
    }
    const std::string folder = argv[1];
    Measure("1000 FIT runs of 2800 points against getline", folder + "/run-laps.fit", kFiles, ReadFit, "ratio <= 12");
    Measure("100 TCX runs of 940 points against getline", folder + "/run-laps.tcx", kFiles / 10, ReadTrackFile,
            "ratio <= 80");
    return 0;
}
