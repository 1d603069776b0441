// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Form.h"
#include "windows/page/SelectionField.h"
#include "windows/routes/FrmDesPercorso.h"

namespace zelvia
{

/// The field of the route, which knows the routes run before, their times and their descriptions.
class RouteField : public SelectionField
{
public:
    explicit RouteField(frmMain& page) : SelectionField(page, SelectionList::Percorso) {}

    /// Reserves a description for the text of the edit box, and opens it.
    void SalvaNomePercorso();
    /// The place of PercorsoCorrente among the descriptions, 0 when it has none.
    i16 NumeroPercorso();
    void mnuDescrizionePercorso_Click();
    void mnuListaWOrdinata_Click();

    void RemoveSelected() override;
    /// The box holds a name that its list does not.
    bool NewTyped() const;
    /// Closes the field if its box has the focus.
    void Leave();
    /// The window of a description is open.
    bool Described() const { return description_.Loaded(); }
    void UnloadDescription() { description_.Unload(); }

protected:
    void OnChosen(const Text& entry) override;
    void OnTaken(const Text& entry) override;
    void OnClosed(const Text& text, i16 listed) override;

private:
    /// Fills in what is known of a route from the last day of the year that holds it.
    void CopyLastRun(const Text& route);
    void ShowDescription(const Text& name);
    Text Selected() const;

    FormSlot<frmDesPercorso> description_;
};

} // namespace zelvia
