// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Steps through the year with clicks on the arrow of the day, each to the end of the repaint, and onto a day with a
// note that grows.
#include "bench/PageBench.h"
#include "diary/Module1.h"

#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

// Including the one that is not counted, from the first day of a common year to its last.
constexpr int kSteps = 363;

constexpr int kRounds = 60;
constexpr std::size_t kNotes[] = {1'000, 100'000, 1'000'000}; ///< Bytes of the note; the baseline's has 10.

/// Steps from 1 January onto the next day, whose note is of any length a file may have, and back.
void MeasureNotes(ShownPage& shown, const std::string& platform)
{
    while (Module1::GiornoCorrente > 1) {
        Click(shown.arrow, shown.down);
    }
    shown.onPage.Wait();
    const auto step = [&](std::size_t length) {
        Module1::Giorni[2].Note[3] = Text(length, 'n');
        const double time = MillisecondsOf([&] {
            Click(shown.arrow, shown.up);
            shown.onPage.Wait();
        });
        Click(shown.arrow, shown.down);
        shown.onPage.Wait();
        return time;
    };
    for (const std::size_t length : kNotes) {
        const Samples samples = Alternate(
            kRounds, [&] { return step(length); }, [&] { return step(10); });
        PrintMedians(("Step, note " + std::to_string(length) + " against 10, " + platform).c_str(), samples, "ms",
                     "measured <= 16 ms");
    }
}

void Measure(frmMain& page, const std::string& platform)
{
    ShownPage shown(page);
    while (Module1::GiornoCorrente > 1) {
        Click(shown.arrow, shown.down);
    }
    shown.onPage.Wait();

    const Samples samples = Alternate(
        kSteps,
        [&] {
            return MillisecondsOf([&] {
                Click(shown.arrow, shown.up);
                shown.onPage.Wait();
            });
        },
        [&] { return shown.RepaintBare(); });
    PrintMedians(("Step of a day, " + platform).c_str(), samples, "ms", "measured <= 16 ms");
    PrintRow(("Step of a day, slowest 5%, " + platform).c_str(), Quantile(samples.measured, 0.95),
             Quantile(samples.baseline, 0.95), "ms", "measured <= 16 ms");
    MeasureNotes(shown, platform);
}

} // namespace

/// Takes the platform's name for the table and the program folder with a diary.
int main(int argc, char* argv[])
{
    return RunOnPage(argc, argv, Measure);
}
