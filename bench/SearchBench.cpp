// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Searches a full year and opens its charts with clicks on the buttons, each to the finished window.
#include "bench/PageBench.h"
#include "core/Conversions.h"
#include "diary/Module1.h"

#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kRounds = 60;

/// A run on each day of the year, on one of sixty routes, with a pace of its own.
void FillEveryDay()
{
    constexpr int routes = 60;
    for (int day = 1; day <= 366; ++day) {
        RecordGiorno& giorno = Module1::Giorni[day];
        giorno.Percorso = "Lungofiume e parco " + Format(i32(day % routes), "000");
        giorno.Modo = "Lenta";
        giorno.Km = 5 + day % 20;
        giorno.TempoImpiegato = "1:02:" + Format(i32(day % 60), "00");
        giorno.MediaKm = "5:" + Format(i32(day % 60), "00");
    }
}

void Close(Form& window)
{
    window.Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// A click on the button until the window of that name is painted, against a bare window of as many labels.
template <typename Done>
void MeasureClick(const std::string& row, const char* figure, Button& button, const char* window, int controls,
                  QSize size, Done&& done)
{
    PaintWatch onWindow{QString::fromLatin1(window)};
    const Samples samples = Alternate(
        kRounds,
        [&] {
            QCoreApplication::processEvents();
            onWindow.Forget();
            const double time = MillisecondsOf([&] {
                Click(button, QRectF(button.rect()).center());
                onWindow.Wait();
            });
            done();
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
    PrintMedians(row.c_str(), samples, "ms", figure);
}

void MeasureChart(const std::string& row, Button& button)
{
    Click(button, QRectF(button.rect()).center());
    const QSize size = Shown<frmGrafici>().size();
    const int controls = ControlsOf(Shown<frmGrafici>());
    Close(Shown<frmGrafici>());
    MeasureClick(row, "measured <= 100 ms", button, "frmGrafici", controls, size, [] { Close(Shown<frmGrafici>()); });
}

void Measure(frmMain& page, const std::string& platform)
{
    PaintWatch onPage(*page.lblData);
    page.show();
    onPage.Wait();
    while (Module1::GiornoCorrente < 365) {
        page.upGiorno->UpClick();
    }
    page.mnuMedie_Click();
    page.DispatchCommand("Percorso");
    // After the last commit of the day on show.
    FillEveryDay();
    page.StatisPercorso();

    auto& search = Shown<frmRicercheStatistiche>();
    // A condition on the pace of running, which every day meets.
    const auto& condition = search.ControlsFor(Categoria::Andatura);
    condition.cmd->click();
    search.lstStatistiche->SetListIndex(0);
    search.lstStatistiche_DblClick();
    MeasureClick("Search over a full year, " + platform, "measured <= 50 ms", *search.cmdAvvia,
                 "frmRicercheStatistiche", ControlsOf(search), search.size(), [] {});
    MeasureChart("Chart of 350 points, " + platform, *search.cmGrafico);
    page.StatisPercorso();
    MeasureChart("Chart of 60 bars, " + platform, *page.StatisticsWindow().cmGrafico);
}

} // namespace

/// Takes the platform's name for the table and the program folder with a diary.
int main(int argc, char* argv[])
{
    return RunOnPage(argc, argv, Measure);
}
