// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/SelectionLists.h"

#include <vector>

namespace zelvia
{

class frmMain;
class TextBox;
struct ListControls;

/// A text field of the page with its selection list: opening, typing, choosing and closing.
class SelectionField
{
public:
    SelectionField(frmMain& page, SelectionList list);
    virtual ~SelectionField() = default;
    SelectionField(const SelectionField&) = delete;
    SelectionField& operator=(const SelectionField&) = delete;

    /// Shows the edit box and the list; the box takes the focus.
    void Open();
    /// Adds the box's trimmed text to the list if it is new there; 1 when the list held it already, else 0.
    i16 AggiungiLista(TextBox& txt);
    /// A key of the box: takes the marked entry into it or, when it is there already, the one `step` further, and goes
    /// into the list on that entry as a press there does.
    void EnterList(int step);
    /// The list shows whole entries in its place on the page, and no more than there are.
    void FitList();
    /// Removes the selected entry from the list.
    virtual void RemoveSelected();

protected:
    /// An entry of the list was chosen, by a single click or the arrow keys.
    virtual void OnChosen(const Text& /*entry*/) {}
    /// The edit box has taken the entry chosen by a double click, Enter or Escape, and will now be left.
    virtual void OnTaken(const Text& /*entry*/) {}
    /// The value label has taken the text; `listed` is 1 when the list held it already.
    virtual void OnClosed(const Text& text, i16 listed);

    frmMain& page_;
    ListControls& controls_;

private:
    void Close();
    void OnListGotFocus();
    void OnListClick();
    void OnListDblClick();
    void OnListKeyPress(int keyAscii);
    void LeaveBox();
    void MarkTyped();
    void MarkAt(std::vector<Text>::const_iterator entry);
    void Connect();

    SelectionList list_;
    Text name_;
};

} // namespace zelvia
