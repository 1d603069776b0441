// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the statistic of the routes on a full year with clicks on its entry of the menu, each to the finished window.
#include "bench/PageBench.h"
#include "core/Conversions.h"
#include "diary/Module1.h"

#include <QMenu>

#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kRounds = 60;

/// Each day has its own route of 22 characters, more of them than a statistic can hold.
void FillEveryDay()
{
    constexpr int routes = 70;
    for (int day = 1; day <= 366; ++day) {
        Module1::Giorni[day].Percorso = "Lungofiume e parco " + Format(i32(day % routes), "000");
    }
}

/// Closes the window on show as "Esci" does, and waits until it has gone.
void CloseStatistics(frmMain& page)
{
    page.StatisticsWindow().Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Measure(frmMain& page, const std::string& platform)
{
    PaintWatch onPage(*page.lblData);
    page.show();
    onPage.Wait();
    while (Module1::GiornoCorrente < 365) {
        page.upGiorno->UpClick();
    }
    FillEveryDay();

    auto& menu = *page.findChild<QMenu*>(QStringLiteral("mnuStatistiche"));
    auto& entry = *page.findChild<QAction*>(QStringLiteral("mnuPercorso"));
    PaintWatch onMenu(menu);
    PaintWatch onStatistics(QStringLiteral("frmStatistiche1"));
    page.StatisticsWindow();
    const int controls = ControlsOf(page.StatisticsWindow());
    const QSize size = page.StatisticsWindow().size();
    CloseStatistics(page);

    const Samples samples = Alternate(
        kRounds,
        [&] {
            onMenu.Forget();
            menu.popup(page.mapToGlobal(QPoint(0, 0)));
            onMenu.Wait();
            const QPoint place = menu.actionGeometry(&entry).center();
            onStatistics.Forget();
            const double time = MillisecondsOf([&] {
                Click(menu, place);
                onStatistics.Wait();
            });
            CloseStatistics(page);
            return time;
        },
        [&] {
            return MillisecondsOf([&] {
                QWidget bare;
                PaintWatch onBare(bare);
                FillBareWindow(bare, controls, size);
                bare.show();
                onBare.Wait();
            });
        });
    PrintMedians(("Statistic of a full year, " + platform).c_str(), samples, "ms", "measured <= 50 ms");
    PrintRow(("Statistic, slowest 5%, " + platform).c_str(), Quantile(samples.measured, 0.95),
             Quantile(samples.baseline, 0.95), "ms", "measured <= 50 ms");
}

} // namespace

/// Takes the platform's name for the table and the program folder with a diary.
int main(int argc, char* argv[])
{
    return RunOnPage(argc, argv, Measure);
}
