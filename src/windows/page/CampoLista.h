// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/SelectionLists.h"

#include <QPoint>

namespace zelvia
{

class frmMain;
struct ListControls;

/// A text field of the page with its selection list: opening, typing, choosing and closing.
class CampoLista
{
public:
    CampoLista(frmMain& page, SelectionList lista);
    virtual ~CampoLista() = default;
    CampoLista(const CampoLista&) = delete;
    CampoLista& operator=(const CampoLista&) = delete;

    /// Shows the edit box and the list; the box takes the focus.
    void Apri();

protected:
    /// An entry of the list was chosen, by a single click or the arrow keys.
    virtual void OnScelta(const Text& /*voce*/) {}
    /// The edit box has taken the entry chosen by a double click, Enter or Escape, and will now be left.
    virtual void OnPresa(const Text& /*voce*/) {}
    /// The value label has taken the text; `presente` is 1 when the list held it already.
    virtual void OnChiusura(const Text& testo, i16 presente);
    /// The entries of the pop-up that only some list has are to be shown.
    virtual bool HaTempiEDescrizione() const { return false; }

    frmMain& page_;

private:
    void Chiudi();
    void OnListGotFocus();
    void OnListClick();
    void OnListDblClick();
    void OnListKeyPress(int keyAscii);
    void OnListMouseUp(Qt::MouseButton button, const QPoint& position);
    void LeaveBox();
    void Connect();

    SelectionList lista_;
    ListControls& controls_;
    Text nome_;
};

/// The field of the route, which knows the routes run before and their descriptions.
class CampoPercorso : public CampoLista
{
public:
    explicit CampoPercorso(frmMain& page) : CampoLista(page, SelectionList::Percorso) {}

protected:
    void OnScelta(const Text& voce) override;
    void OnPresa(const Text& voce) override;
    void OnChiusura(const Text& testo, i16 presente) override;
    bool HaTempiEDescrizione() const override { return true; }
};

} // namespace zelvia
