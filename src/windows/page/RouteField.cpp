// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/RouteField.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/RouteModel.h"
#include "toolkit/FocusController.h"
#include "toolkit/QtText.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void RouteField::OnChosen(const Text& entry)
{
    PercorsoCorrente = entry;
}

void RouteField::OnTaken(const Text& entry)
{
    PercorsoCorrente = entry;
    CopyLastRun(entry);
}

void RouteField::OnClosed(const Text& text, i16 listed)
{
    PercorsoCorrente = text;
    if (listed == 0) {
        SalvaNomePercorso();
        // On a text that was listed already the captions keep the hand pointer until the next field closes.
        page_.CursoreNormale();
    }
}

void RouteField::CopyLastRun(const Text& route)
{
    for (int i = 366; i >= 1; --i) {
        const RecordGiorno& day = Giorni[i];
        if (!SameText(day.Percorso, route)) {
            continue;
        }
        DayOnPage shown(page_);
        shown.ShowText(SelectionList::Lunghezza, day.Lunghezza);
        shown.ShowText(SelectionList::Fondo, day.Fondo);
        page_.SetDistance(day.Km, day.Metri);
        if (page_.ControlloTempiKm() == 1) {
            page_.TempoImpiegato();
        }
        return;
    }
}

void RouteField::RemoveSelected()
{
    if (controls_.lst->ListIndex() >= 0) {
        // A route without a description has been described at place 0, which must not pass it on to another one.
        const i16 description = NumeroPercorso();
        SelectionField::RemoveSelected();
        AzzeraPercorso(description);
    }
}

bool RouteField::NewTyped() const
{
    const Text text = Trim(controls_.txt->Content());
    return CampoNonVuoto(text) && !Holds(EntriesOf(SelectionList::Percorso), text);
}

void RouteField::Leave()
{
    FocusController& focus = FocusController::Instance();
    if (focus.Current() == controls_.txt) {
        focus.LeaveField();
    }
}

void RouteField::SalvaNomePercorso()
{
    Trap("SalvaNomePercorso - ERRORE : ", [this] {
        const Text name = controls_.txt->Content();
        if (name.empty() || RoutePlace(name).value_or(0) > 0) {
            return;
        }
        const i16 free = LowestFreePlace();
        if (free == 0) {
            MsgBox(Messages::kTooManyRoutes);
            return;
        }
        NomiPercorso[free] = name;
        ShowDescription(name);
    });
}

i16 RouteField::NumeroPercorso()
{
    return TrapValue("NumeroPercorso - ERRORE : ", i16(0), [] { return RoutePlace(PercorsoCorrente).value_or(0); });
}

Text RouteField::Selected() const
{
    return controls_.lst->List(controls_.lst->ListIndex());
}

void RouteField::mnuDescrizionePercorso_Click()
{
    Trap("mnuDescrizionePercorso - ERRORE : ", [this] {
        // Closing the field may have opened the description of the name typed there.
        if (Described()) {
            return;
        }
        const Text name = Selected();
        if (!name.empty()) {
            PercorsoCorrente = name;
        }
        ShowDescription(name);
    });
}

void RouteField::ShowDescription(const Text& name)
{
    frmDesPercorso& window = description_.Load(&page_, page_);
    window.ShowInFront();
    window.setWindowTitle(ToQString("Percorso : " + name));
}

void RouteField::mnuListaWOrdinata_Click()
{
    Trap("mnuListaWOrdinata - ERRORE : ", [this] {
        page_.lstListaOrdinata->Clear();
        page_.ListavOrdinataDue(Selected());
    });
}

} // namespace zelvia
