// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Control.h"

#include <QEvent>
#include <QObject>

#include <deque>
#include <vector>

namespace zelvia
{

/// Reports changes of focus to the controls of all windows.
///
/// A change is completed first and reported afterwards, LostFocus of the old control before GotFocus of the new one, in
/// order and never nested: changes made by a handler wait for their turn. Another application's window, a menu, a
/// message box and a file dialog take no focus in this sense. What the two handlers of one change hide and show reaches
/// the screen at its end, so a list that its box's closing hides and its own GotFocus shows again keeps the press that
/// chose a row.
class FocusController : public QObject
{
    Q_OBJECT

public:
    static FocusController& Instance();

    /// The control last reported to have the focus, or null.
    Control* Current() const { return current_; }

    void SetFocus(Control& control);

    /// Closes the field that is open, as leaving it for another one does, and reports that at once. Nothing is asked.
    void LeaveField();

    /// Reports the pending changes, unless a routine runs.
    void Flush();

    /// Has the event loop run Flush, if any change is pending.
    void Schedule();

    /// Runs the Validate of the control that has the focus, for a move to `target`. True when the focus must stay.
    bool Refuses(const Control* target);

    /// True when the control's visibility will be brought to the screen at the end of the change being reported.
    bool DeferVisibility(Control& control);

    /// Brings deferred visibilities to the screen now, because a box is about to open.
    void ShowDeferred();

    /// Disables a control while it works. Its focus waits in the sink of its window, and no change is reported.
    void Grey(Control& control);

    /// Undoes Grey: the control gets its focus back or, when it stays disabled, the one that had the focus before.
    void EndGrey(Control& control, bool enabled);

    /// Sends the focus of a control that is about to be hidden to the sink of its window.
    void LeaveHidden(Control& control);

    void Forget(Control& control);

    /// Sees each event before its receiver; true when it was consumed.
    bool FilterInput(QObject* receiver, QEvent* event);

private:
    FocusController();
    void OnFocusChanged(QWidget* old, QWidget* now);
    void Enqueue(Control* control);
    Control* Focused() const { return waiting_.empty() ? current_ : waiting_.back(); }
    void Settle();
    void Tell(Control* next);
    bool FilterPress(QWidget* widget, QEvent* event);

    Control* current_ = nullptr;
    Control* previous_ = nullptr; ///< The one that had the focus before `current_`.
    std::deque<Control*> waiting_;
    // Room is reserved for all that one change hides and shows, so hiding a control never runs out of memory.
    std::vector<Control*> deferred_;
    std::vector<Control*> shown_;
    Control* displaced_ = nullptr; ///< Has the focus, which the sink keeps for it: hidden during a box, or disabled.
    bool telling_ = false;
    bool deferring_ = false;
    bool validating_ = false;
    bool scheduled_ = false;
};

} // namespace zelvia
