// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The selection lists and their files.
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::InizializzaListe()
{
    Trap("InizializzaListe - ERRORE : ", [this] {
        for (const ListaScelta lista : kTutteLeListe) {
            ListBox& lst = *Campo(lista).lst;
            lst.Clear();
            lst.AddItems(VociIniziali(lista));
        }
    });
}

void frmMain::SalvaLista(ListaScelta lista)
{
    Trap("SalvaLista" + Text(NomeLista(lista)) + " - ERRORE : ",
         [&] { ScriviLista(FileLista(lista), Campo(lista).lst->Items()); });
}

void frmMain::CaricaLista(ListaScelta lista)
{
    // The routine of the temperatures has lost a letter, and its report with it.
    const Text nome = lista == ListaScelta::Temperatura ? "Teperatura" : Text(NomeLista(lista));
    Trap("CaricaLista" + nome + " - ERRORE : ", [&] {
        ListBox& lst = *Campo(lista).lst;
        LeggiLista(
            FileLista(lista), [&] { lst.Clear(); }, [&](const Text& voce) { lst.AddItem(voce); });
    });
}

void frmMain::SalvaListe()
{
    SalvaListaPercorso();
    SalvaListaLunghezza();
    SalvaListaModo();
    SalvaListaFondo();
    SalvaListaTipo();
    SalvaListaTempoAtm();
    SalvaListaTemperatura();
}

void frmMain::CaricaListe()
{
    CaricaListaPercorso();
    CaricaListaLunghezza();
    CaricaListaModo();
    CaricaListaFondo();
    CaricaListaTipo();
    CaricaListaTempoAtm();
    CaricaListaTeperatura();
}

void frmMain::mnuListaIniziale_Click()
{
    Trap("mnuListaIniziale - ERRORE : ", [this] {
        if (MsgBox("RIPRISTINARE LE LISTE INIZIALI ?              ", MsgButtons::OKCancel, MsgIcon::Information) ==
            MsgAnswer::OK) {
            InizializzaListe();
            AzzeraPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuListaPrecedente_Click()
{
    Trap("mnuListaPrecedente - ERRORE : ", [this] {
        if (MsgBox("RIPRISTINARE LE LISTE PRECEDENTI ?              ", MsgButtons::OKCancel, MsgIcon::Information) ==
            MsgAnswer::OK) {
            NomeFleListe();
            CaricaListe();
            CaricaPercorsi();
            FileModificato = 1;
        }
    });
}

void frmMain::mnuAzzeraGiorno_Click()
{
    Trap("mnuAzzeraGiorno - ERRORE : ", [this] {
        if (MsgBox("AZZERARE I DATI DEL GIORNO ?              ", MsgButtons::OKCancel, MsgIcon::Information) ==
            MsgAnswer::OK) {
            AzzeraRecordGiorno(GiornoCorrente);
            FileModificato = 1;
            AzzeraCampi();
            VisualizzaGiorno();
        }
    });
}

} // namespace zelvia
