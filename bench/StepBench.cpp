// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Steps through the year with clicks on the arrow of the day, each to the end of the repaint.
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
