// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "diary/RecordGiorno.h"
#include "diary/SelectionLists.h"
#include "toolkit/Button.h"
#include "toolkit/Label.h"
#include "toolkit/ListBox.h"
#include "toolkit/Picture.h"
#include "toolkit/TextBox.h"
#include "toolkit/UpDown.h"

#include <array>
#include <variant>
#include <vector>

namespace zelvia
{

/// The controls of a text field that takes its value from a selection list.
struct ControlliLista {
    Label* lbl = nullptr;      ///< The caption.
    Label* lblImmis = nullptr; ///< The value on the page.
    TextBox* txt = nullptr;    ///< Lies over the value, hidden at rest.
    ListBox* lst = nullptr;    ///< Opens under it, hidden at rest.
};

/// The controls of a line of notes.
struct ControlliNota {
    Label* lbl = nullptr;
    TextBox* txt = nullptr;
};

/// The number of a day that a spin control holds.
using NumberMember = std::variant<std::monostate, i16 RecordGiorno::*, i32 RecordGiorno::*>;

/// Every control of the day page under its name. What stands where is in PageLayout.
struct PageControls {
    // Date and file.
    Label* lblData = nullptr;
    UpDown* upGiorno = nullptr;
    UpDown* upMese = nullptr;
    Label* lblNomeFile = nullptr;

    // Counters of the year.
    Label* lblNumGiornoAnno = nullptr;
    Label* lblNumGiorniCorseAnno = nullptr;
    Label* lblNumKMPercorsi = nullptr;
    Label* lblNumGare = nullptr;
    Picture* pctGiornoAnno = nullptr;
    Picture* pctAllenamenti = nullptr;
    Picture* pctKmpercorsi = nullptr;
    Picture* pctGare = nullptr;

    // Text fields, in the order of their lists' numbers.
    BoundedArray<ControlliLista, 1, 8> campi;
    ControlliLista& Campo(SelectionList lista) { return campi[static_cast<int>(lista)]; }

    // Numeric fields.
    struct NumberSpin {
        NumberMember member;
        UpDown* spin;
    };
    std::vector<NumberSpin> numeri;
    /// The spin control that shows a number of the day. Each has one.
    UpDown& SpinOf(NumberMember member) const;
    Label* lblKm = nullptr;
    Label* lblImmisMetri = nullptr;
    UpDown* upKM = nullptr;
    UpDown* upMetri = nullptr;
    UpDown* upMetro = nullptr;
    Label* lblOraInizio = nullptr;
    Label* lblImmisOraInizio = nullptr;
    UpDown* upOraInizio = nullptr;
    UpDown* upMinutiInizio = nullptr;
    UpDown* upSecondiInizio = nullptr;
    Label* lblOraFine = nullptr;
    Label* lblImmisOraFine = nullptr;
    UpDown* upOraFine = nullptr;
    UpDown* upMinutiFine = nullptr;
    UpDown* upSecondiFine = nullptr;
    Label* lblOutTempoImpiegato = nullptr;
    Label* lblOutMediaKM = nullptr;
    Label* lblCorridori = nullptr;
    Label* lblImmisCorridori = nullptr;
    UpDown* upCorridori = nullptr;
    Label* lblPeso = nullptr;
    Label* lblImmisPeso = nullptr;
    UpDown* upPeso = nullptr;
    Label* lblRipetizioni = nullptr;
    Label* lblRipetizioniVolte = nullptr;
    Label* lblRipetizioniDistanza = nullptr;
    Label* lblRipetizioniQuante = nullptr;
    UpDown* upRipetizioni = nullptr;
    UpDown* upRipetizioniDistanza = nullptr;
    UpDown* upRipetizioniQuante = nullptr;
    UpDown* upRipetizioniTempi = nullptr;

    // Kilometre splits and the sorted list of times.
    Label* lblTempoKm = nullptr;
    Label* lblImmisTempoKM = nullptr;
    Label* lblImmisTempoMinuti = nullptr;
    UpDown* upTempoKM = nullptr;
    UpDown* upTempoOre = nullptr;
    UpDown* upTempoMinuti = nullptr;
    UpDown* upTempoSecondi = nullptr;
    ListBox* lstListaKM = nullptr;
    Button* cmdListaKM = nullptr;
    ListBox* lstListaOrdinata = nullptr;
    std::array<Button*, 4> cmdLO{};

    BoundedArray<ControlliNota, 3, 10> note;

    // The active table.
    Picture* pctTabAllenamenti = nullptr;
    Picture* pctTabKm = nullptr;
    Picture* pctTabTempo = nullptr;
    Picture* pctTabMedia = nullptr;
    Picture* pctTabAndatura = nullptr;
    Picture* pctTabTerreno = nullptr;
    Picture* pctTabRipetizioni = nullptr;
    Label* lblTabNomeFile = nullptr;
    Label* lblKmTab = nullptr;
    Label* lblTempoTab = nullptr;
    Label* lblMediaTab = nullptr;
    Label* lblAndaturaTab = nullptr;
    Label* lblFondoTab = nullptr;
    Label* lblRipetizioniTab = nullptr;
    Label* lblTimerTab = nullptr;

    // The race of the day.
    Picture* pctCalGara = nullptr;
    Picture* pctCalLocalita = nullptr;
    Picture* pctCalLunghezza = nullptr;
    Picture* pctCalPartecipanti = nullptr;
    Picture* pctCalTempoImpiegato = nullptr;
    Picture* pctCalRisultato = nullptr;
    Picture* pctCalCategoria = nullptr;
    Picture* pctCalRisCategoria = nullptr;
    Label* lblGara = nullptr;
    Label* lblLocalita = nullptr;
    Label* lblPartecipanti = nullptr;
    Label* lblTempoImpiegato = nullptr;
    Label* lblLunghezzaGara = nullptr;
    Label* lblRisultato = nullptr;
    Label* lblCategoria = nullptr;
    Label* lblRisultatoCat = nullptr;
};

/// Creates every control of the page on `page`, in its place, with its caption and limits, visible or hidden as at
/// rest. The order of their creation is the order of the Tab key.
void BuildPage(PageControls& controls, QWidget* page);

} // namespace zelvia
