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

void frmMain::mnuMedie_Click()
{
    AssegnaCampi();
    frmRicercheStatistiche& search =
        ricerche_.Load([this](const PaceTable& medie) { MostraGraficoMedia(grafici_, medie); });
    search.show();
    search.raise();
    search.activateWindow();
}

} // namespace zelvia
