// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics by category, the searches and the charts: their windows.
#include "windows/page/FrmMain.h"

namespace zelvia
{

frmStatistiche1& frmMain::StatisticsWindow()
{
    return statistiche_.Load([this](const Text& titolo) { MostraGrafico(grafici_, titolo); });
}

void frmMain::Statis(Categoria categoria)
{
    RunStatistic(StatisticOf(categoria), StatisticsWindow());
}

void frmMain::ShowStatistic(void (frmMain::*statis)())
{
    AssegnaCampi();
    (this->*statis)();
    StatisticsWindow().ShowInFront();
}

void frmMain::mnuMedie_Click()
{
    AssegnaCampi();
    ricerche_.Load([this](const PaceTable& medie) { MostraGraficoMedia(grafici_, medie); }).ShowInFront();
}

} // namespace zelvia
