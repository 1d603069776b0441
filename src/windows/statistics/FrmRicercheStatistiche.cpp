// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The search window's work: conditions, period, search, result.
#include "windows/statistics/FrmRicercheStatistiche.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "toolkit/Printer.h"

#include <algorithm>
#include <utility>

namespace zelvia
{

using namespace Module1;

void frmRicercheStatistiche::InizializzaVarMedie()
{
    condizioni = {};
    AzzeraTotali(totali);
}

TestiPeriodo frmRicercheStatistiche::PeriodTexts() const
{
    TestiPeriodo testi;
    std::transform(campiPeriodo.begin(), campiPeriodo.end(), testi.begin(),
                   [](const TextBox* box) { return box->Content(); });
    return testi;
}

void frmRicercheStatistiche::AssegnaVariabili()
{
    static constexpr i16 CondizioniRicerca::*dates[] = {
        &CondizioniRicerca::GiornoInizio, &CondizioniRicerca::MeseInizio, &CondizioniRicerca::AnnoInizio,
        &CondizioniRicerca::GiornoFine,   &CondizioniRicerca::MeseFine,   &CondizioniRicerca::AnnoFine};
    const TestiPeriodo testi = PeriodTexts();
    for (std::size_t i = 0; i < testi.size(); ++i) {
        condizioni.*dates[i] = Parsed<i16>(testi[i]);
    }
    for (const CondizioneCategoria& condizione : kCondizioni) {
        const Text caption = ControlliDi(condizione.categoria).lbl->Caption();
        if (condizione.testo != nullptr) {
            condizioni.*condizione.testo = caption;
        } else {
            condizioni.*condizione.numero = Parsed<i16>(caption);
        }
    }
}

void frmRicercheStatistiche::cmdCategoria_Click(Categoria categoria)
{
    Label& lbl = *ControlliDi(categoria).lbl;
    NascondiMedie();
    lstStatistiche->Clear();
    lbl.SetCaption({});
    if (!lbl.Visible()) {
        lbl.SetVisible(true);
        Lista(categoria);
    } else {
        lbl.SetVisible(false);
        lblTitoliSta->SetVisible(false);
    }
}

void frmRicercheStatistiche::Lista(Categoria categoria)
{
    const Statistica& statistica = StatisticaDi(categoria);
    Trap(statistica.erroreLista, [&] {
        CategoriaLista = Text(statistica.titolo);
        ContaValori(statistica);
        for (int i = 1; i <= kMaxCategorie; ++i) {
            if (statistica.numero == nullptr && !NomeCategoria[i].empty()) {
                lstStatistiche->AddItem(NomeCategoria[i]);
            } else if (statistica.numero != nullptr && ValoreCategoria[i] != 0) {
                lstStatistiche->AddItem(PlainText(ValoreCategoria[i]));
            }
        }
        lblTitoliSta->SetCaption(CategoriaLista);
        lblTitoliSta->SetVisible(true);
    });
}

void frmRicercheStatistiche::lstStatistiche_DblClick()
{
    for (const CondizioneCategoria& condizione : kCondizioni) {
        if (SameText(StatisticaDi(condizione.categoria).titolo, CategoriaLista)) {
            ControlliDi(condizione.categoria).lbl->SetCaption(lstStatistiche->List(lstStatistiche->ListIndex()));
        }
    }
}

void frmRicercheStatistiche::cmdPeriodo_Click()
{
    const bool show = !lblDalTit->Visible();
    for (Control* control : {lblDalTit, lblDataInizio, lblAlTit, lblDataFine}) {
        control->SetVisible(show);
    }
    for (TextBox* box : campiPeriodo) {
        box->SetContent({});
        box->SetVisible(show);
    }
    if (show) {
        campiPeriodo[CampoPeriodo::GiornoInizio]->SetFocus();
    }
}

void frmRicercheStatistiche::ControlloData(i16& errore)
{
    errore = 0;
    Trap("Controllo Data - ERRORE : ", [&] {
        const ControlloPeriodo controllo = ControllaPeriodo(PeriodTexts());
        for (const CorrezionePeriodo& correzione : controllo.correzioni) {
            MsgBox(correzione.messaggio, MsgButtons::OK, MsgIcon::Exclamation);
            campiPeriodo[correzione.campo]->SetContent(correzione.valore);
        }
        if (controllo.invertito) {
            MsgBox(kPeriodoInvertito, MsgButtons::OK, MsgIcon::Exclamation);
            errore = 1;
        }
    });
}

void frmRicercheStatistiche::cmdAvvia_Click()
{
    i16 errore;
    ControlloData(errore);
    if (errore == 1) {
        return;
    }
    InizializzaVarMedie();
    AssegnaVariabili();
    lstMedie->Clear();
    lblTitoliSta->SetVisible(false);
    RicercaMedie();
    ShowHeads(true);
}

void frmRicercheStatistiche::RicercaMedie()
{
    const EsitoRicerca esito = CercaCorse(Giorni, GiornoCorrente, condizioni, totali);
    totali = esito.totali;
    auto listed = esito.righe.begin();
    const auto list = [&](std::size_t count) {
        const auto end = esito.righe.begin() + static_cast<std::ptrdiff_t>(count);
        lstMedie->AddItems(std::vector<TextView>(std::exchange(listed, end), end));
    };
    // While a box is up the list shows what had been found when its error arose.
    for (const ErroreRicerca& errore : esito.errori) {
        list(errore.righe);
        ReportError(errore.titolo, errore.errore);
    }
    list(esito.righe.size());
    if (!esito.interrotta) {
        AddUp();
    }
}

/// Shows each total as soon as it is known, before any box that the next one brings.
void frmRicercheStatistiche::AddUp()
{
    Trap("SommaKm - ERRORE : ", [this] { SommaKm(totali); });
    VisualLblTotali();
    lblTcorse->SetCaption(TestoCorse(totali));
    lblTkm->SetCaption(TestoDistanza(totali));
    Trap("Tempi Totali - ERRORE : ", [this] { TempiTotali(totali); });
    lblTtempi->SetCaption(TestoTempi(totali));
    Trap("Media Totali - ERRORE : ", [this] { MediaTotali(totali); });
    lblTmedia->SetCaption(TestoMedia(totali));
}

/// What the window shows of its search.
SearchSheetTexts frmRicercheStatistiche::SheetTexts() const
{
    SearchSheetTexts testi;
    testi.data = DataCorrente;
    const TestiPeriodo periodo = PeriodTexts();
    std::copy_n(periodo.begin(), testi.inizio.size(), testi.inizio.begin());
    std::copy_n(periodo.begin() + CampoPeriodo::GiornoFine, testi.fine.size(), testi.fine.begin());
    std::transform(
        kCondizioni.begin(), kCondizioni.end(), testi.condizioni.begin(),
        [this](const CondizioneCategoria& condizione) { return ControlliDi(condizione.categoria).lbl->Caption(); });
    for (int i = 0; i < lstMedie->ListCount(); ++i) {
        testi.righe.push_back(lstMedie->List(i));
    }
    testi.totali = {lblTcorse->Caption(), lblTkm->Caption(), lblTtempi->Caption(), lblTmedia->Caption()};
    return testi;
}

void frmRicercheStatistiche::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [this] { return SearchSheet(SheetTexts()); });
}

void frmRicercheStatistiche::NascondiMedie()
{
    ShowHeads(false);
    NascondiLblTotali();
}

void frmRicercheStatistiche::ShowHeads(bool visible)
{
    for (Control* control : std::initializer_list<Control*>{lblTitoliMedie, lblTitoliMedie2, lstMedie}) {
        control->SetVisible(visible);
    }
}

void frmRicercheStatistiche::ShowTotals(bool visible)
{
    for (Control* control : totals_) {
        control->SetVisible(visible);
    }
    for (Picture* shape : shapes_) {
        shape->SetVisible(!visible);
    }
}

} // namespace zelvia
