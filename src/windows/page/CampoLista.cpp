// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/CampoLista.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "toolkit/Menu.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr int kEnter = 13;
constexpr int kEscape = 27;

Text Title(TextView control, TextView nome)
{
    return Text(control) + Text(nome) + " - ERRORE : ";
}

} // namespace

CampoLista::CampoLista(frmMain& page, SelectionList lista)
    : page_(page), lista_(lista), controls_(page.Campo(lista)), nome_(ListName(lista))
{
    Connect();
}

void CampoLista::Connect()
{
    const auto trapped = [this](TextView control, void (CampoLista::*handler)()) {
        return [this, title = Title(control, nome_), handler] { Trap(title, [&] { (this->*handler)(); }); };
    };
    controls_.lblImmis->OnClick(trapped("lblImmis", &CampoLista::Apri));
    controls_.lbl->OnClick(trapped("lbl", &CampoLista::LeaveBox), KeyReach::MouseOnly);
    controls_.txt->LostFocus = trapped("txt", &CampoLista::Chiudi);
    controls_.txt->Click = trapped("txt", &CampoLista::LeaveBox);
    controls_.txt->KeyPress = [leave = controls_.txt->Click](int& keyAscii) {
        if (keyAscii == kEnter || keyAscii == kEscape) {
            leave();
        }
    };
    controls_.lst->GotFocus = trapped("lst", &CampoLista::OnListGotFocus);
    controls_.lst->Click = trapped("lst", &CampoLista::OnListClick);
    controls_.lst->DblClick = trapped("lst", &CampoLista::OnListDblClick);
    // The key handler of the temperatures goes by no name of its own.
    const Text keyTitle = lista_ == SelectionList::Temperatura ? Text(kBareTitle) : Title("lst", nome_);
    controls_.lst->KeyPress = [this, keyTitle](int keyAscii) { Trap(keyTitle, [&] { OnListKeyPress(keyAscii); }); };
    controls_.lst->MouseUp = [this](Qt::MouseButton button, const QPoint& position) {
        Trap(Title("lst", nome_), [&] { OnListMouseUp(button, position); });
    };
}

void CampoLista::Apri()
{
    Trap(Title("Immis", nome_), [this] {
        page_.FollowInTabOrder(*controls_.lst);
        controls_.txt->SetVisible(true);
        controls_.lst->SetVisible(true);
        page_.EnterField(*controls_.txt);
    });
}

void CampoLista::Chiudi()
{
    controls_.txt->SetVisible(false);
    controls_.lst->SetVisible(false);
    page_.ListaAperta = 0;
    const i16 presente = page_.AggiungiLista(*controls_.txt, lista_);
    const Text testo = controls_.txt->Content();
    controls_.lblImmis->SetCaption(testo);
    OnChiusura(testo, presente);
}

void CampoLista::OnChiusura(const Text& /*testo*/, i16 /*presente*/)
{
    page_.CursoreNormale();
}

void CampoLista::OnListGotFocus()
{
    controls_.txt->SetVisible(true);
    controls_.lst->SetVisible(true);
    page_.ListaAperta = static_cast<int>(lista_);
    page_.CursoreMano();
}

void CampoLista::OnListClick()
{
    controls_.lst->viewport()->update();
    OnScelta(controls_.lst->List(controls_.lst->ListIndex()));
}

void CampoLista::OnListDblClick()
{
    const Text voce = controls_.lst->List(controls_.lst->ListIndex());
    controls_.txt->SetContent(voce);
    OnPresa(voce);
    controls_.txt->SetFocus();
    page_.FocusSink().SetFocus();
}

void CampoLista::OnListKeyPress(int keyAscii)
{
    if (keyAscii == kEnter && controls_.lst->ListIndex() >= 0) {
        controls_.lst->DblClick();
    } else if (keyAscii == kEnter || keyAscii == kEscape) {
        // With nothing selected Enter too closes the field on the text of its box.
        controls_.txt->SetFocus();
        controls_.txt->Click();
    }
}

void CampoLista::OnListMouseUp(Qt::MouseButton button, const QPoint& position)
{
    page_.ShowRouteEntries(HaTempiEDescrizione() && button == Qt::RightButton);
    if (button == Qt::RightButton) {
        OpenPopUp(*page_.mnuCancelladallaLista, position);
        page_.ShowRouteEntries(false);
    }
}

void CampoLista::LeaveBox()
{
    page_.FocusSink().SetFocus();
}

void CampoPercorso::OnScelta(const Text& voce)
{
    PercorsoCorrente = voce;
}

void CampoPercorso::OnPresa(const Text& voce)
{
    PercorsoCorrente = voce;
    page_.CopyLastRun(voce);
}

void CampoPercorso::OnChiusura(const Text& testo, i16 presente)
{
    PercorsoCorrente = testo;
    if (presente == 0) {
        page_.SalvaNomePercorso();
        // On a text that was listed already the hand stays on the captions until the next field closes.
        page_.CursoreNormale();
    }
}

} // namespace zelvia
