// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics by category and their window.
#include "daywindow/FrmMain.h"

namespace zelvia
{

frmStatistiche1& frmMain::StatisticsWindow()
{
    // The window of the charts joins here.
    return statistiche_.Load(AperturaGrafico());
}

void frmMain::Statis(Categoria categoria)
{
    EseguiStatistica(StatisticaDi(categoria), StatisticsWindow());
}

void frmMain::ShowStatistic(void (frmMain::*statis)())
{
    AssegnaCampi();
    (this->*statis)();
    frmStatistiche1& window = StatisticsWindow();
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace zelvia
