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

class PaperSheet;

/// The controls of a text field that takes its value from a selection list.
struct ListControls {
    Label* lbl = nullptr;      ///< The caption.
    Label* lblImmis = nullptr; ///< The value on the page.
    TextBox* txt = nullptr;    ///< Lies over the value, hidden at rest.
    ListBox* lst = nullptr;    ///< Opens under it, hidden at rest.
};

/// The controls of a line of notes.
struct NoteControls {
    Label* lbl = nullptr;
    TextBox* txt = nullptr;
};

/// The number of a day that a spin control holds.
using NumberMember = std::variant<std::monostate, i16 RecordGiorno::*, i32 RecordGiorno::*>;

/// Every control of the day page under its name. Their places are in PageLayout.
struct PageControls {
    PaperSheet* sheet{}; ///< Their parent.

    // Date and file.
    Label *lblData{}, *lblNomeFile{};
    UpDown *upGiorno{}, *upMese{};
    Label* lblIndiceMesi{}; ///< The tabs of the months along the page's edge.
    Picture* pctCoccarda{}; ///< The rosette of a race day.

    // Counters of the year.
    Label *lblNumGiornoAnno{}, *lblNumGiorniCorseAnno{}, *lblNumKMPercorsi{}, *lblNumGare{};
    Picture *pctGiornoAnno{}, *pctAllenamenti{}, *pctKmpercorsi{}, *pctGare{};

    // Text fields, in the order of their lists' numbers.
    BoundedArray<ListControls, 1, 8> listFields;
    ListControls& ListField(SelectionList list) { return listFields[static_cast<int>(list)]; }

    // Numeric fields.
    Label *lblKm{}, *lblImmisMetri{};
    UpDown *upKM{}, *upMetri{}, *upMetro{};
    Picture* pctUnita{}; ///< What the three step, in print.
    Label *lblOraInizio{}, *lblImmisOraInizio{};
    UpDown *upOraInizio{}, *upMinutiInizio{}, *upSecondiInizio{};
    Label *lblOraFine{}, *lblImmisOraFine{};
    UpDown *upOraFine{}, *upMinutiFine{}, *upSecondiFine{};
    Label *lblOutTempoImpiegato{}, *lblOutMediaKM{};
    Label *lblCorridori{}, *lblImmisCorridori{};
    UpDown* upCorridori{};
    Label *lblPeso{}, *lblImmisPeso{};
    UpDown* upPeso{};
    Label *lblRipetizioni{}, *lblRipetizioniVolte{}, *lblRipetizioniDistanza{}, *lblRipetizioniQuante{};
    UpDown *upRipetizioni{}, *upRipetizioniDistanza{}, *upRipetizioniQuante{}, *upRipetizioniTempi{};

    /// The spin control and the value label of each number.
    struct NumberControls {
        NumberMember member;
        UpDown* spin;
        Label* label;
    };
    std::vector<NumberControls> numbers;
    const NumberControls& ControlsOf(NumberMember member) const;
    /// The captions of the fields.
    std::vector<Label*> captions;

    // Kilometre splits and the sorted list of times.
    Label *lblTempoKm{}, *lblImmisTempoKM{}, *lblImmisTempoMinuti{};
    UpDown *upTempoKM{}, *upTempoOre{}, *upTempoMinuti{}, *upTempoSecondi{};
    ListBox *lstListaKM{}, *lstListaOrdinata{};
    Button* cmdListaKM{};
    std::array<Button*, 4> cmdLO{};

    BoundedArray<NoteControls, kFirstNote, kLastNote> notes;

    // The slip of the active table, and that of the race of the day.
    Picture *pctTabAllenamenti{}, *pctTabKm{}, *pctTabTempo{}, *pctTabMedia{}, *pctTabAndatura{}, *pctTabTerreno{};
    Picture* pctTabRipetizioni{};
    Label *lblTabNomeFile{}, *lblKmTab{}, *lblTempoTab{}, *lblMediaTab{}, *lblAndaturaTab{}, *lblFondoTab{};
    Label *lblRipetizioniTab{}, *lblTimerTab{};
    Picture *pctCalGara{}, *pctCalLocalita{}, *pctCalLunghezza{}, *pctCalPartecipanti{}, *pctCalTempoImpiegato{};
    Picture *pctCalRisultato{}, *pctCalCategoria{}, *pctCalRisCategoria{};
    Label *lblGara{}, *lblLocalita{}, *lblPartecipanti{}, *lblTempoImpiegato{}, *lblLunghezzaGara{};
    Label *lblRisultato{}, *lblCategoria{}, *lblRisultatoCat{};
    /// The lines of a slip from the top down: a printed caption and a value.
    struct SlipLine {
        Picture* picture;
        Label* label;
    };
    std::vector<SlipLine> tableSlip, raceSlip;

    /// Each field's value, and what opens over it or beside it, in the order of the Tab key.
    std::vector<std::vector<QWidget*>> fields;
};

/// Creates every control of the page on `page`, in its place, with its caption and limits, visible or hidden as at
/// rest. The order of their creation is the order of the Tab key.
void BuildPage(PageControls& controls, PaperSheet* page);

} // namespace zelvia
