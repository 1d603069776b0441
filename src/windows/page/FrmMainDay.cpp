// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A day between its record and the controls.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "windows/page/FrmMain.h"

#include <array>

namespace zelvia
{

using namespace Module1;

namespace
{

struct TextField {
    ListaScelta lista;
    Text RecordGiorno::*field;
};

constexpr std::array<TextField, 8> kTextFields = {{{ListaScelta::Percorso, &RecordGiorno::Percorso},
                                                   {ListaScelta::Lunghezza, &RecordGiorno::Lunghezza},
                                                   {ListaScelta::Modo, &RecordGiorno::Modo},
                                                   {ListaScelta::Fondo, &RecordGiorno::Fondo},
                                                   {ListaScelta::Tipo, &RecordGiorno::Tipo},
                                                   {ListaScelta::Stagione, &RecordGiorno::Stagione},
                                                   {ListaScelta::TempoAtm, &RecordGiorno::TempoAtm},
                                                   {ListaScelta::Temperatura, &RecordGiorno::Temperatura}}};

Text RecordGiorno::*FieldOf(ListaScelta lista)
{
    return kTextFields[static_cast<std::size_t>(lista) - 1].field;
}

struct NumberField {
    UpDown* PageControls::*spin;
    i16 RecordGiorno::*field;
};

constexpr std::array<NumberField, 6> kClock = {{{&PageControls::upOraInizio, &RecordGiorno::OraInizio},
                                                {&PageControls::upMinutiInizio, &RecordGiorno::MinutiInizio},
                                                {&PageControls::upSecondiInizio, &RecordGiorno::SecondiInizio},
                                                {&PageControls::upOraFine, &RecordGiorno::OraFine},
                                                {&PageControls::upMinutiFine, &RecordGiorno::MinutiFine},
                                                {&PageControls::upSecondiFine, &RecordGiorno::SecondiFine}}};

constexpr std::array<NumberField, 5> kBody = {
    {{&PageControls::upPeso, &RecordGiorno::Peso},
     {&PageControls::upRipetizioni, &RecordGiorno::Ripetizioni},
     {&PageControls::upRipetizioniDistanza, &RecordGiorno::RipetizioniDistanza},
     {&PageControls::upRipetizioniQuante, &RecordGiorno::RipetizioniQuante},
     {&PageControls::upRipetizioniTempi, &RecordGiorno::RipetizioniTempi}}};

constexpr int kNoteLength = 32;
constexpr int kFirstNote = 3;
constexpr int kLastNote = 10;

TextView OrBlank(const Text& value, TextView blank)
{
    return value.empty() ? blank : TextView(value);
}

constexpr TextView kNoTime = "0:00:00";
constexpr TextView kNoPace = "0:00";

} // namespace

void frmMain::ShowTextField(ListaScelta lista, TextView valore)
{
    Campo(lista).lblImmis->SetCaption(valore);
    Campo(lista).txt->SetContent(valore);
}

void frmMain::ShowNote(int riga, TextView valore)
{
    const Text line = Left(valore, kNoteLength);
    note[riga].lbl->SetCaption(line);
    note[riga].txt->SetContent(line);
}

void frmMain::VisualizzaGiorno()
{
    Trap("VisualizzaGiorno - ERRORE : ", [this] {
        const RecordGiorno& giorno = Giorni[GiornoCorrente];
        const auto showTexts = [&](std::initializer_list<ListaScelta> liste) {
            for (const ListaScelta lista : liste) {
                ShowTextField(lista, giorno.*FieldOf(lista));
            }
        };
        showTexts({ListaScelta::Percorso, ListaScelta::Lunghezza});
        upKM->SetValue(giorno.Km);
        upMetri->SetValue(giorno.Metri);
        showTexts({ListaScelta::Modo, ListaScelta::Fondo, ListaScelta::Tipo});
        for (const NumberField& row : kClock) {
            (this->*row.spin)->SetValue(giorno.*row.field);
        }
        lblOutTempoImpiegato->SetCaption(OrBlank(giorno.TempoImpiegato, kNoTime));
        lblOutMediaKM->SetCaption(OrBlank(giorno.MediaKm, kNoPace));
        lblImmisTempoKM->SetCaption("0");
        lblImmisTempoMinuti->SetCaption("00:00:00");
        lstListaKM->Clear();
        for (const Text& parziale : giorno.ListaKm) {
            if (!parziale.empty()) {
                lstListaKM->AddItem(parziale);
            }
        }
        showTexts({ListaScelta::Stagione, ListaScelta::TempoAtm, ListaScelta::Temperatura});
        upCorridori->SetValue(giorno.Corridori);
        for (const NumberField& row : kBody) {
            (this->*row.spin)->SetValue(giorno.*row.field);
        }
        for (int riga = kFirstNote; riga <= kLastNote; ++riga) {
            ShowNote(riga, giorno.Note[riga]);
        }
    });
}

void frmMain::BlankTextFields(const RecordGiorno& giorno)
{
    for (const TextField& row : kTextFields) {
        if (!(giorno.*row.field).empty()) {
            ShowTextField(row.lista, {});
        }
    }
    for (int riga = kFirstNote; riga <= kLastNote; ++riga) {
        if (!giorno.Note[riga].empty()) {
            ShowNote(riga, {});
        }
    }
}

void frmMain::AzzeraCampi()
{
    Trap("AzzeraCampi - ERRORE : ", [this] {
        const RecordGiorno& giorno = Giorni[GiornoCorrente];
        BlankTextFields(giorno);
        for (UpDown* spin : {upKM, upMetri, upMetro}) {
            spin->SetValue(0);
        }
        for (const NumberField& row : kClock) {
            (this->*row.spin)->SetValue(0);
        }
        lblOutTempoImpiegato->SetCaption(OrBlank(giorno.TempoImpiegato, kNoTime));
        lblOutMediaKM->SetCaption(OrBlank(giorno.MediaKm, kNoPace));
        lblImmisTempoKM->SetCaption("0");
        lblImmisTempoMinuti->SetCaption("00:00:00");
        lstListaKM->Clear();
        upCorridori->SetValue(1);
        for (const NumberField& row : kBody) {
            (this->*row.spin)->SetValue(0);
        }
    });
}

void frmMain::CommitTexts(RecordGiorno& giorno, std::initializer_list<ListaScelta> liste)
{
    for (const ListaScelta lista : liste) {
        giorno.*FieldOf(lista) = Campo(lista).lblImmis->Caption();
    }
}

void frmMain::AssegnaCampi()
{
    Trap("AssegnaCampi - ERRORE : ", [this] {
        if (FileModificato == 0) {
            ControllaSave(FileModificato);
        }
        RecordGiorno& giorno = Giorni[GiornoCorrente];
        giorno.NumGiorno = GiornoCorrente;
        giorno.Data = DataCorrente;
        CommitTexts(giorno, {ListaScelta::Percorso, ListaScelta::Lunghezza});
        giorno.Km = i16(upKM->Value());
        giorno.Metri = i16(upMetro->Value() + upMetri->Value());
        CommitTexts(giorno, {ListaScelta::Modo, ListaScelta::Fondo, ListaScelta::Tipo});
        for (const NumberField& row : kClock) {
            giorno.*row.field = i16((this->*row.spin)->Value());
        }
        giorno.TempoImpiegato = lblOutTempoImpiegato->Caption();
        giorno.MediaKm = lblOutMediaKM->Caption();
        giorno.ListaKm.Clear();
        for (int i = 0; i < lstListaKM->ListCount(); ++i) {
            giorno.ListaKm[i] = lstListaKM->List(i);
        }
        CommitTexts(giorno, {ListaScelta::Stagione, ListaScelta::TempoAtm, ListaScelta::Temperatura});
        giorno.Corridori = upCorridori->Value();
        for (const NumberField& row : kBody) {
            giorno.*row.field = i16((this->*row.spin)->Value());
        }
        for (int riga = kFirstNote; riga <= kLastNote; ++riga) {
            giorno.Note[riga] = note[riga].txt->Content();
        }
    });
}

bool frmMain::TextsDiffer(const RecordGiorno& giorno)
{
    for (const TextField& row : kTextFields) {
        if (!SameText(giorno.*row.field, Campo(row.lista).lblImmis->Caption())) {
            return true;
        }
    }
    for (int riga = kFirstNote; riga <= kLastNote; ++riga) {
        if (!SameText(giorno.Note[riga], note[riga].txt->Content())) {
            return true;
        }
    }
    return false;
}

bool frmMain::NumbersDiffer(const RecordGiorno& giorno) const
{
    const auto differs = [&](const NumberField& row) { return (this->*row.spin)->Value() != giorno.*row.field; };
    return upKM->Value() != giorno.Km || upMetro->Value() + upMetri->Value() != giorno.Metri ||
           upCorridori->Value() != giorno.Corridori || std::any_of(kClock.begin(), kClock.end(), differs) ||
           std::any_of(kBody.begin(), kBody.end(), differs);
}

void frmMain::ControllaSave(i16& esito)
{
    Trap("ControllaSave - ERRORE : ", [&] {
        const RecordGiorno& giorno = Giorni[GiornoCorrente];
        esito = TextsDiffer(giorno) || NumbersDiffer(giorno) ? 1 : 0;
        // Only the lines that the list holds are compared: one that merely became shorter is unchanged.
        for (int i = 0; i < lstListaKM->ListCount(); ++i) {
            if (!SameText(giorno.ListaKm[i], lstListaKM->List(i))) {
                esito = 1;
            }
        }
    });
}

void frmMain::DatiAnno()
{
    Trap("DatiAnno - ERRORE : ", [this] {
        UltimoPeso = 0;
        KmAnno = 0;
        GiorniCorseAnno = GareAnno = 0;
        i32 metri = 0;
        for (i16 i = 1; i <= GiornoCorrente; i += 1) {
            const RecordGiorno& giorno = Giorni[i];
            if (giorno.Peso > 0) {
                UltimoPeso = giorno.Peso;
            }
            if (giorno.Km > 0) {
                KmAnno += giorno.Km;
            }
            if (giorno.Metri > 0) {
                metri += giorno.Metri;
            }
            if (SameText(Trim(giorno.Tipo), "Gara")) {
                GareAnno += 1;
            } else if (CampoNonVuoto(giorno.Tipo)) {
                GiorniCorseAnno += 1;
            }
        }
        KmAnno += metri.value() / 1000;
        lblNumKMPercorsi->SetCaption(Format(KmAnno, "###,###"));
        lblNumGiorniCorseAnno->SetCaption(PlainText(GiorniCorseAnno));
        lblNumGare->SetCaption(PlainText(GareAnno));
    });
}

} // namespace zelvia
