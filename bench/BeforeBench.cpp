// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Does all that comes before a start of the sample diary, about which there is nothing to say, against a plain
// std::getline loop over its files.
#include "bench/Measure.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/start/BeforeStart.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kStarts = 20;
constexpr int kRounds = 5;

/// A start that has nobody to talk to, and ends the measuring when it has something to say. Without a file of the
/// memory nothing is remembered.
Start SilentStart(const std::string& folder, const std::filesystem::path& memory)
{
    const auto complain = [](const std::string& text) {
        std::cerr << "before_bench: " << text << '\n';
        std::exit(1);
    };
    Start start{folder, {complain, {}, {}}, StartMemory(memory)};
    start.speaker.ask = [complain](const std::string& text, const std::vector<std::string>& /*buttons*/,
                                   const std::string& /*command*/) -> std::optional<std::size_t> {
        complain(text);
        return std::nullopt;
    };
    return start;
}

} // namespace

/// Takes the program's folder.
int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 2;
    }
    const std::string folder = argv[1];
    Start first = SilentStart(folder, StartMemoryFile());
    PrepareStart(first);
    std::size_t bytes = 0;
    const auto readOnly = [&] {
        for (int i = 0; i < kStarts; ++i) {
            for (const std::string& file : WorkspaceFiles(folder)) {
                bytes += BytesByLines(folder + "/" + file);
            }
        }
    };
    const auto measure = [&](const char* name, void (*step)(Start&), const std::filesystem::path& memory,
                             const char* figure) {
        const auto steps = [&] {
            for (int i = 0; i < kStarts; ++i) {
                Start start = SilentStart(folder, memory);
                step(start);
            }
        };
        PrintMedians(name,
                     Alternate(
                         kRounds, [&] { return MillisecondsOf(steps); }, [&] { return MillisecondsOf(readOnly); }),
                     "ms", figure);
    };
    measure("20 checks before the start against getline", CheckPresentDiary, {}, "ratio <= 20");
    measure("20 checks of an unchanged diary", CheckPresentDiary, StartMemoryFile(), "ratio <= 1");
    measure("20 unchanged copies before the start", KeepCopy, {}, "ratio <= 1");
    return bytes == 0 ? 1 : 0;
}
