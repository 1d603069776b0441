// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The printed sheet of the day on the page.
#include "core/RunTimeError.h"
#include "diary/DaySheet.h"
#include "diary/Module1.h"
#include "toolkit/Printer.h"
#include "windows/page/FrmMain.h"

#include <cstddef>
#include <initializer_list>

namespace zelvia
{

using namespace Module1;

namespace
{

template <std::size_t N>
std::array<Text, N> Captions(const Label* const (&labels)[N])
{
    std::array<Text, N> captions;
    for (std::size_t i = 0; i < N; ++i) {
        captions[i] = labels[i]->Caption();
    }
    return captions;
}

/// What the labels of the page show, whether or not it has been committed.
DaySheetTexts TextsOf(PageControls& page)
{
    const auto campo = [&](SelectionList lista) { return page.Campo(lista).lblImmis; };
    DaySheetTexts testi;
    testi.data = DataCorrente;
    testi.campi =
        Captions({campo(SelectionList::Percorso), campo(SelectionList::Lunghezza), page.lblImmisMetri,
                  campo(SelectionList::Modo), campo(SelectionList::Fondo), campo(SelectionList::Tipo), page.lblImmisOraInizio,
                  page.lblImmisOraFine, page.lblOutTempoImpiegato, page.lblOutMediaKM, campo(SelectionList::Stagione),
                  campo(SelectionList::TempoAtm), campo(SelectionList::Temperatura), page.lblImmisCorridori,
                  page.lblImmisPeso, page.lblRipetizioniVolte, page.lblRipetizioniDistanza, page.lblRipetizioniQuante});
    testi.conGara = page.pctCalGara->Visible();
    testi.nomeTabella = page.lblTabNomeFile->Caption();
    testi.tabella = Captions({page.lblKmTab, page.lblTempoTab, page.lblMediaTab, page.lblAndaturaTab, page.lblFondoTab,
                              page.lblRipetizioniTab});
    testi.gara = Captions({page.lblGara, page.lblLocalita, page.lblPartecipanti, page.lblTempoImpiegato,
                           page.lblLunghezzaGara, page.lblRisultato, page.lblCategoria, page.lblRisultatoCat});
    for (std::size_t i = 0; i < testi.note.size(); ++i) {
        constexpr int firstNote = 3;
        testi.note[i] = page.note[firstNote + static_cast<int>(i)].lbl->Caption();
    }
    testi.contatori =
        Captions({page.lblNumGiornoAnno, page.lblNumGiorniCorseAnno, page.lblNumKMPercorsi, page.lblNumGare});
    return testi;
}

} // namespace

void frmMain::mnuFilePrint_Click()
{
    auto* entry = findChild<QAction*>(QStringLiteral("mnuFilePrint"));
    entry->setEnabled(false);
    Trap(kPrintErrors, [this] { PrintSheet(DaySheet(TextsOf(*this))); });
    entry->setEnabled(true);
}

} // namespace zelvia
