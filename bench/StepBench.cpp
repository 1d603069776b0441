// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Steps through the year with clicks on the arrow of the day, each to the end of the repaint, and onto a day with a
// note that grows.
#include "bench/BareWindow.h"
#include "bench/Measure.h"
#include "bench/PageCount.h"
#include "bench/PaintWatch.h"
#include "core/Files.h"
#include "core/Module1.h"
#include "daywindow/FrmMain.h"
#include "toolkit/Application.h"

#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

// With the one that is not counted, from the first day of a common year to its last.
constexpr int kSteps = 363;

constexpr int kRounds = 60;
constexpr std::size_t kNotes[] = {1'000, 100'000, 1'000'000}; ///< Bytes of the note; the baseline's has 10.

/// Steps from 1 January onto the next day, whose note is as it may come from a file, and back.
void MeasureNotes(UpDown& arrow, const QPointF& up, const QPointF& down, PaintWatch& onPage,
                  const std::string& platform)
{
    while (Module1::GiornoCorrente > 1) {
        Click(arrow, down);
    }
    onPage.Wait();
    const auto step = [&](std::size_t length) {
        Module1::Giorni[2].Note[3] = Text(length, 'n');
        const double time = MillisecondsOf([&] {
            Click(arrow, up);
            onPage.Wait();
        });
        Click(arrow, down);
        onPage.Wait();
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
    PaintWatch onPage(*page.lblData);
    page.show();
    page.lblData_Click();
    onPage.Wait();

    // Below the page: an X server paints nothing of a window that another one covers.
    QWidget bare;
    PaintWatch onBare(bare);
    FillBareWindow(bare, ControlsOf(page), page.size());
    bare.move(0, page.height());
    bare.show();
    onBare.Wait();

    UpDown& arrow = *page.upGiorno;
    const QPointF up(arrow.width() / 2.0, arrow.height() / 4.0);
    const QPointF down(arrow.width() / 2.0, arrow.height() * 3 / 4.0);
    while (Module1::GiornoCorrente > 1) {
        Click(arrow, down);
    }
    onPage.Wait();

    const Samples samples = Alternate(
        kSteps,
        [&] {
            return MillisecondsOf([&] {
                Click(arrow, up);
                onPage.Wait();
            });
        },
        [&] {
            return MillisecondsOf([&] {
                bare.update();
                onBare.Wait();
            });
        });
    PrintMedians(("Step of a day, " + platform).c_str(), samples, "ms", "measured <= 16 ms");
    PrintRow(("Step of a day, slowest 5%, " + platform).c_str(), Quantile(samples.measured, 0.95),
             Quantile(samples.baseline, 0.95), "ms", "measured <= 16 ms");
    MeasureNotes(arrow, up, down, onPage, platform);
}

} // namespace

/// Takes the platform's name for the table and the program folder with a diary.
int main(int argc, char* argv[])
{
    if (argc < 3) {
        return 2;
    }
    Application application(argc, argv);
    SetProgramFolder(SystemPath(argv[2]));
    frmMain page;
    if (!page.FormLoad()) {
        return 1;
    }
    Measure(page, argv[1]);
    return 0;
}
