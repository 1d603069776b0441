// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that restore the lists and blank the day, the statistics and the searches.
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

bool Agreed(const Message& question)
{
    return MsgBox(question) == MsgAnswer::OK;
}

} // namespace

void frmMain::mnuListaIniziale_Click()
{
    Trap("mnuListaIniziale - ERRORE : ", [this] {
        if (Agreed(Messages::kFirstLists)) {
            InizializzaListe();
            AzzeraPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuListaPrecedente_Click()
{
    Trap("mnuListaPrecedente - ERRORE : ", [this] {
        if (Agreed(Messages::kSavedLists)) {
            NomeFleListe();
            files_.CaricaListe();
            CaricaPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuAzzeraGiorno_Click()
{
    Trap("mnuAzzeraGiorno - ERRORE : ", [this] {
        if (Agreed(Messages::kBlankDay)) {
            AzzeraRecordGiorno(GiornoCorrente);
            FileModificato = 1;
            AzzeraCampi();
            VisualizzaGiorno();
        }
    });
}

frmStatistiche1& frmMain::StatisticsWindow()
{
    return statistiche_.Load([this](const Text& titolo) { MostraGrafico(grafici_, titolo); });
}

void frmMain::Statis(zelvia::Categoria categoria)
{
    RunStatistic(StatisticOf(categoria), StatisticsWindow());
}

void frmMain::ShowStatistic(zelvia::Categoria categoria)
{
    AssegnaCampi();
    Statis(categoria);
    StatisticsWindow().ShowInFront();
}

void frmMain::mnuMedie_Click()
{
    AssegnaCampi();
    ricerche_.Load([this](const PaceTable& medie) { MostraGraficoMedia(grafici_, medie); }).ShowInFront();
}

} // namespace zelvia
