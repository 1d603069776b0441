// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/ChartModel.h"
#include "toolkit/Button.h"
#include "toolkit/Chart.h"
#include "toolkit/Form.h"
#include "toolkit/Picture.h"

#include <array>

namespace zelvia
{

/// The window of the charts: one at a time, replaced by the next one.
class frmGrafici : public Form
{
    Q_OBJECT

public:
    frmGrafici();

    Control& FocusSink() override { return *cmdEsci; }

    void cmdStampa_Click();

    Chart* MSChart1;
    Button* cmdStampa;
    Button* cmdEsci;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::array<Picture*, 7> shapes_{}; ///< The printed lines.
};

// Each loads the chart window if need be, gives it the chart and shows it. An error is reported under the name of the
// routine, and the window still opens.

/// How often each value of the category counted last occurred, as bars, under the category's word.
void MostraGrafico(FormSlot<frmGrafici>& slot, TextView title);

/// The pace of the runs that a search found, as a line.
void MostraGraficoMedia(FormSlot<frmGrafici>& slot, const PaceTable& values);

} // namespace zelvia
