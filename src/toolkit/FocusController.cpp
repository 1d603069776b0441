// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/FocusController.h"

#include "toolkit/Events.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/ListBox.h"
#include "toolkit/ListView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include <algorithm>

namespace zelvia
{
namespace
{

/// The control that represents a widget with Qt's focus: its own, or the sink of its window. Null
/// for what takes no focus in the program's sense.
Control* FocusTarget(QWidget* widget)
{
    if (widget == nullptr || qobject_cast<QMenuBar*>(widget) != nullptr || qobject_cast<QMenu*>(widget) != nullptr) {
        return nullptr;
    }
    Form* form = Form::Of(widget);
    if (form == nullptr) {
        return nullptr;
    }
    Control* control = ControlOf(widget);
    return control != nullptr ? control : &form->FocusSink();
}

Control* SinkOf(const Control& control)
{
    Form* form = Form::Of(&control.Widget());
    return form == nullptr ? nullptr : &form->FocusSink();
}

/// True for the keys that move the focus on.
bool Moves(const QKeyEvent& event)
{
    const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return tab && (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

/// True when the control has the focus of its window, be that the active one or not.
bool HoldsFocus(const Control& control)
{
    const QWidget& widget = control.Widget();
    const QWidget* focused = widget.window()->focusWidget();
    return focused != nullptr && (focused == &widget || widget.isAncestorOf(focused));
}

} // namespace

FocusController& FocusController::Instance()
{
    static FocusController controller;
    return controller;
}

FocusController::FocusController()
{
    constexpr std::size_t room = 64;
    deferred_.reserve(room);
    shown_.reserve(room);
    connect(qApp, &QApplication::focusChanged, this, &FocusController::OnFocusChanged);
}

void FocusController::OnFocusChanged(QWidget* old, QWidget* now)
{
    // Under Wayland a menu takes the keyboard from its window: a bar that was left meanwhile comes back with the focus.
    const auto* bar = qobject_cast<QMenuBar*>(now);
    if (bar != nullptr && old == nullptr && bar->activeAction() == nullptr && current_ != nullptr &&
        current_->Widget().window() == bar->window()) {
        current_->Widget().setFocus(Qt::ActiveWindowFocusReason);
        return;
    }
    Control* target = FocusTarget(now);
    if (target != nullptr && (displaced_ == nullptr || target != SinkOf(*displaced_))) {
        Enqueue(target);
    }
}

void FocusController::Enqueue(Control* control)
{
    if (control != Focused()) {
        waiting_.push_back(control);
        Schedule();
    }
}

void FocusController::Schedule()
{
    if (!waiting_.empty() && !scheduled_) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                scheduled_ = false;
                Flush();
            },
            Qt::QueuedConnection);
        // Only now: when the call could not be queued the next change must try again.
        scheduled_ = true;
    }
}

void FocusController::Flush()
{
    if (telling_ || Routine::Running()) {
        return;
    }
    telling_ = true;
    while (!waiting_.empty()) {
        Control* next = waiting_.front();
        waiting_.pop_front();
        if (next != current_) {
            Tell(next);
        }
    }
    telling_ = false;
}

void FocusController::Tell(Control* next)
{
    Control* old = std::exchange(current_, next);
    previous_ = old;
    deferring_ = true;
    if (old != nullptr) {
        Fire(old->LostFocus);
    }
    if (current_ == next && next != nullptr) {
        Fire(next->GotFocus);
    }
    deferring_ = false;
    ShowDeferred();
    Settle();
}

/// A box opened while a change was being reported may have temporarily hidden the control that has the focus.
void FocusController::Settle()
{
    const Control* displaced = std::exchange(displaced_, nullptr);
    if (current_ == nullptr || !waiting_.empty()) {
        return;
    }
    if (current_->Visible()) {
        if (!HoldsFocus(*current_)) {
            current_->Widget().setFocus(Qt::OtherFocusReason);
        }
    } else if (displaced == current_) {
        Enqueue(SinkOf(*current_));
    }
}

void FocusController::LeaveHidden(Control& control)
{
    // A window that is being built has no sink yet, and no focus to leave.
    Control* sink = HoldsFocus(control) ? SinkOf(control) : nullptr;
    if (sink == nullptr || sink == &control) {
        return;
    }
    const Control* focused = Focused();
    const bool elsewhere = focused != nullptr && focused->Widget().window() != control.Widget().window();
    if (deferring_ && &control == current_) {
        displaced_ = &control;
    } else if (!elsewhere) {
        Enqueue(sink);
    }
    sink->Widget().setFocus(Qt::OtherFocusReason);
}

void FocusController::SetFocus(Control& control)
{
    if (!control.Visible() || !control.Widget().isEnabled() || Refuses(&control)) {
        return;
    }
    control.Widget().setFocus(Qt::OtherFocusReason);
    control.OnFocusGiven();
    Enqueue(&control);
}

void FocusController::Grey(Control& control)
{
    if (&control == Focused() && HoldsFocus(control)) {
        displaced_ = &control;
        SinkOf(control)->Widget().setFocus(Qt::OtherFocusReason);
    }
    control.Widget().setEnabled(false);
}

void FocusController::EndGrey(Control& control, bool enabled)
{
    control.Widget().setEnabled(enabled);
    if (displaced_ != &control) {
        return;
    }
    displaced_ = nullptr;
    if (enabled) {
        control.Widget().setFocus(Qt::OtherFocusReason);
        return;
    }
    const bool returns = previous_ != nullptr && previous_->Visible() && previous_->Widget().isEnabled() &&
                         previous_->Widget().window() == control.Widget().window();
    SetFocus(returns ? *previous_ : *SinkOf(control));
}

void FocusController::LeaveField()
{
    Control* focused = Focused();
    const bool open = focused != nullptr && dynamic_cast<const Label*>(focused) == nullptr;
    if (Control* sink = open ? SinkOf(*focused) : nullptr) {
        sink->Widget().setFocus(Qt::OtherFocusReason);
        Enqueue(sink);
    }
    Flush();
}

bool FocusController::Refuses(const Control* target)
{
    const Control* focused = Focused();
    if (validating_ || focused == nullptr || focused == target || !focused->Validate || !focused->Visible()) {
        return false;
    }
    if (target != nullptr && target->Widget().window() != focused->Widget().window()) {
        return false;
    }
    validating_ = true;
    bool refused = false;
    Fire([&] { refused = focused->Validate(); });
    validating_ = false;
    return refused;
}

bool FocusController::DeferVisibility(Control& control)
{
    if (deferring_ && std::find(deferred_.begin(), deferred_.end(), &control) == deferred_.end()) {
        deferred_.push_back(&control);
    }
    return deferring_;
}

void FocusController::ShowDeferred()
{
    shown_.clear();
    shown_.swap(deferred_);
    // What is shown comes first: it may have been given the focus, which then does not pass through the sink.
    std::stable_partition(shown_.begin(), shown_.end(), [](const Control* control) { return control->Visible(); });
    for (Control* control : shown_) {
        if (control->Visible() != control->Widget().isVisibleTo(control->Widget().parentWidget())) {
            control->ApplyVisible();
        }
    }
}

void FocusController::Forget(Control& control)
{
    for (Control** place : {&current_, &previous_, &displaced_}) {
        *place = *place == &control ? nullptr : *place;
    }
    std::erase(waiting_, &control);
    std::erase(deferred_, &control);
}

bool FocusController::FilterInput(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return receiver->isWidgetType() && FilterPress(static_cast<QWidget*>(receiver), event);
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        // The press of this click may have moved the focus, and its handler must find that reported.
        Flush();
        return false;
    case QEvent::KeyPress: {
        if (!receiver->isWidgetType()) {
            return false;
        }
        Flush();
        return Moves(*static_cast<QKeyEvent*>(event)) && current_ != nullptr &&
               ControlOf(static_cast<QWidget*>(receiver)) == current_ && Refuses(nullptr);
    }
    default: return false;
    }
}

bool FocusController::FilterPress(QWidget* widget, QEvent* event)
{
    Flush();
    Control* target = ControlOf(widget);
    const bool list = dynamic_cast<ListBox*>(target) != nullptr || dynamic_cast<ListView*>(target) != nullptr;
    if (list && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        // A right press neither selects nor takes the focus; the list acts when the button is released.
        return true;
    }
    const bool takesFocus = target != nullptr && target->Widget().isEnabled() &&
                            (target->Widget().focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
    return takesFocus && Refuses(target);
}

} // namespace zelvia
