// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the page that are entered with a list, and what all fields share.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "toolkit/FocusController.h"
#include "windows/page/CampoLista.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

#include <QMenu>

namespace zelvia
{

using namespace Module1;

void frmMain::FollowInTabOrder(QWidget& field)
{
    QWidget& sink = FocusSink().Widget();
    // Qt leaves alone what Tab does not stop at.
    sink.setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(&field, &sink);
    sink.setFocusPolicy(Qt::NoFocus);
}

void frmMain::EnterField(Control& control)
{
    control.GotFocus = [this, &control] {
        control.GotFocus = {};
        CursoreMano();
    };
    control.SetFocus();
}

void frmMain::ConnectLists()
{
    for (const SelectionList lista : kAllLists) {
        campiLista_[static_cast<int>(lista)] = lista == SelectionList::Percorso
                                                   ? std::make_unique<CampoPercorso>(*this)
                                                   : std::make_unique<CampoLista>(*this, lista);
    }
}

void frmMain::Immis(SelectionList lista)
{
    campiLista_[static_cast<int>(lista)]->Apri();
}

i16 frmMain::AggiungiLista(TextBox& txt, SelectionList lista)
{
    i16 presente = 0;
    Trap("AggiungiLista - ERRORE : ", [&] {
        const Text testo = Trim(txt.Content());
        if (testo != txt.Content()) {
            txt.SetContent(testo);
        }
        if (!CampoNonVuoto(testo)) {
            return;
        }
        presente = Holds(EntriesOf(lista), testo) ? 1 : 0;
        if (presente == 0) {
            EntriesOf(lista).push_back(testo);
            Campo(lista).lst->AddItem(testo);
            FileModificato = 1;
        }
    });
    return presente;
}

void frmMain::ShowRouteEntries(bool visible)
{
    for (const char* name : {"mnuListaWOrdinata", "mnuDescrizionePercorso"}) {
        mnuCancelladallaLista->findChild<QAction*>(QLatin1String(name))->setVisible(visible);
    }
}

bool frmMain::NewRouteTyped()
{
    const ListControls& campo = Campo(SelectionList::Percorso);
    const Text testo = Trim(campo.txt->Content());
    return CampoNonVuoto(testo) && !Holds(EntriesOf(SelectionList::Percorso), testo);
}

void frmMain::LeaveRouteBox()
{
    FocusController& focus = FocusController::Instance();
    if (focus.Current() == Campo(SelectionList::Percorso).txt) {
        focus.LeaveField();
    }
}

void frmMain::mnuCancella_Click()
{
    Trap("mnuCancella - ERRORE : ", [this] {
        const int numero = ListaAperta.value();
        constexpr int splits = 9;
        if (numero >= 1 && numero <= 8) {
            RemoveSelected(static_cast<SelectionList>(numero));
        } else if (numero == splits && lstListaKM->ListIndex() >= 0) {
            lstListaKM->RemoveItem(lstListaKM->ListIndex());
        }
        FileModificato = 1;
    });
}

void frmMain::RemoveSelected(SelectionList lista)
{
    ListControls& campo = Campo(lista);
    const int selected = campo.lst->ListIndex();
    if (selected < 0) {
        return;
    }
    const bool percorso = lista == SelectionList::Percorso;
    // A route without a description has been described at place 0, which must not hand it on to another one.
    const i16 descrizione = percorso ? NumeroPercorso() : i16(0);
    EntriesOf(lista).erase(EntriesOf(lista).begin() + selected);
    campo.lst->RemoveItem(selected);
    campo.txt->SetContent({});
    if (percorso) {
        AzzeraPercorso(descrizione);
    }
}

void frmMain::CopyLastRun(const Text& percorso)
{
    for (int i = 366; i >= 1; --i) {
        const RecordGiorno& giorno = Giorni[i];
        if (!SameText(giorno.Percorso, percorso)) {
            continue;
        }
        DayOnPage day(*this);
        day.ShowText(SelectionList::Lunghezza, giorno.Lunghezza);
        day.ShowText(SelectionList::Fondo, giorno.Fondo);
        upKM->SetValue(giorno.Km);
        upMetri->SetValue(giorno.Metri);
        if (ControlloTempiKm() == 1) {
            TempoImpiegato();
        }
        return;
    }
}

} // namespace zelvia
