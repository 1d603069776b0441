// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The two slow ends of a training table: the step of a day that walks it along a whole year, and the editor's opening.
#include "bench/PageBench.h"
#include "core/MessageBox.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kSteps = 363;
constexpr int kOpenings = 40;

/// The active table of a program folder during its lifetime: from New Year on, its rows ask for everything and more
/// than anybody runs, so that every day of the year is compared completely.
class ActivePlan
{
public:
    explicit ActivePlan(const std::string& programFolder)
        : native_(programFolder + "/prova/Misura.tab"), pointer_(SystemPath(programFolder + "/prova/nometab"))
    {
        using namespace Module1;
        AzzeraTabella();
        for (int row = 1; row <= 31; ++row) {
            TabKm[row] = 99;
            TabMetri[row] = 999;
            TabOre[row] = 24;
            TabMinuti[row] = TabSecondi[row] = TabMediaSecondi[row] = 59;
            TabMediaMinuti[row] = 1;
            TabAndatura[row] = "Media/Veloce";
            TabFondo[row] = "Strada/Sentiero/Salita";
            TabRipetVolte[row] = 99;
            TabRipetDistanza[row] = 9999;
            TabRipetTempi[row] = 1;
        }
        TabDataInizio = CalendarDate(2026, 1, 1);
        ScriviTabella(SystemPath(native_));
        WritePointer(pointer_, SystemPath(native_));
    }
    ActivePlan(const ActivePlan&) = delete;
    ActivePlan& operator=(const ActivePlan&) = delete;
    ~ActivePlan()
    {
        WritePointer(pointer_, {});
        std::filesystem::remove(native_);
    }

private:
    std::string native_;
    Text pointer_;
};

void MeasureSteps(frmMain& page, const std::string& platform)
{
    ShownPage shown(page);
    // From the last day of the year to the one before and back: there is no step up from the last one.
    bool back = false;
    const Samples samples = Alternate(
        kSteps,
        [&] {
            back = !back;
            return MillisecondsOf([&] {
                Click(shown.arrow, back ? shown.down : shown.up);
                shown.onPage.Wait();
            });
        },
        [&] { return shown.RepaintBare(); });
    // Each step walked the table to the end of the year, and none of its rows was reached.
    if (Module1::GiornoCorrente < 364 || Module1::IndiceTabella != 1 || page.lblKmTab->Caption() != "99,999") {
        std::cerr << "plan_bench: the table was not walked\n";
        std::exit(1);
    }
    PrintMedians(("Step at the year's end, plan, " + platform).c_str(), samples, "ms", "measured <= 16 ms");
    PrintRow(("The same, slowest 5%, " + platform).c_str(), Quantile(samples.measured, 0.95),
             Quantile(samples.baseline, 0.95), "ms", "measured <= 16 ms");
}

double OpenBareWindow(int labels, QSize size)
{
    auto bare = std::make_unique<QWidget>();
    return MillisecondsOf([&] {
        PaintWatch onBare(*bare);
        FillBareWindow(*bare, labels, size);
        bare->show();
        onBare.Wait();
    });
}

/// Each opening is measured from the list's command to the end of the first paint.
void MeasureEditor(frmMain& page, const std::string& platform)
{
    page.mnuAllenamenti_Click();
    auto& list = Shown<frmTabAllenamenti>();
    PaintWatch(list).Wait();
    int controls = 0;
    QSize size;
    const auto openEditor = [&] {
        list.flbListaTabelle->SetListIndex(0);
        const double time = MillisecondsOf([&] {
            list.cmdOK_Click();
            PaintWatch(Shown<frmAllenamento>()).Wait();
        });
        auto& editor = Shown<frmAllenamento>();
        controls = ControlsOf(editor);
        size = editor.size();
        editor.Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return time;
    };
    // The first is the one that the user waits for: nothing of it has been drawn before.
    const double first = openEditor();
    PrintRow(("First opening of the editor, " + platform).c_str(), first, OpenBareWindow(controls, size), "ms",
             "measured <= 150 ms");

    const Samples samples = Alternate(kOpenings, openEditor, [&] { return OpenBareWindow(controls, size); });
    PrintMedians(("Opening of the editor, " + platform).c_str(), samples, "ms", "measured <= 150 ms");
    PrintRow(("The same, slowest 5%, " + platform).c_str(), Quantile(samples.measured, 0.95),
             Quantile(samples.baseline, 0.95), "ms", "measured <= 150 ms");
}

} // namespace

/// Takes the platform's name for the table and the program folder with a diary, in which it has a table for as long as
/// it runs.
int main(int argc, char* argv[])
{
    const auto prepare = [](const char* folder) {
        SetMsgBoxHandler([](const MsgRequest& request) {
            std::cerr << request.text << '\n';
            std::exit(1);
            return MsgAnswer::OK;
        });
        SetClock([] { return CalendarDate(2026, 12, 31); });
        return std::make_unique<ActivePlan>(folder);
    };
    return RunOnPage(argc, argv, prepare, [](frmMain& page, const std::string& platform) {
        MeasureSteps(page, platform);
        MeasureEditor(page, platform);
    });
}
