// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/FocusController.h"

#include "toolkit/Events.h"
#include "toolkit/Form.h"
#include "toolkit/ListBox.h"

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

/// The control that stands for a widget that Qt gave the focus: its own, or the sink of the window it lies in. Null
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

} // namespace

FocusController& FocusController::Instance()
{
    static FocusController controller;
    return controller;
}

FocusController::FocusController()
{
    connect(qApp, &QApplication::focusChanged, this, &FocusController::OnFocusChanged);
}

void FocusController::OnFocusChanged(QWidget* /*old*/, QWidget* now)
{
    if (Control* target = FocusTarget(now)) {
        Enqueue(target);
    }
}

void FocusController::Enqueue(Control* control)
{
    const Control* last = waiting_.empty() ? current_ : waiting_.back();
    if (control != last) {
        waiting_.push_back(control);
        Schedule();
    }
}

void FocusController::Schedule()
{
    if (!waiting_.empty() && !scheduled_) {
        scheduled_ = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                scheduled_ = false;
                Flush();
            },
            Qt::QueuedConnection);
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
    const Control* old = std::exchange(current_, next);
    deferring_ = true;
    if (old != nullptr) {
        Fire(old->LostFocus);
    }
    if (current_ == next && next != nullptr) {
        Fire(next->GotFocus);
    }
    deferring_ = false;
    ShowDeferred();
    // A box that came up meanwhile may have hidden, for its time, the control that now shows again.
    if (waiting_.empty() && current_ != nullptr && current_->Visible()) {
        QWidget& widget = current_->Widget();
        if (widget.window()->isActiveWindow() && !widget.hasFocus() &&
            !widget.isAncestorOf(QApplication::focusWidget())) {
            widget.setFocus(Qt::OtherFocusReason);
        }
    }
}

void FocusController::SetFocus(Control& control)
{
    if (!control.Visible() || !control.Widget().isEnabled() || Refuses(&control)) {
        return;
    }
    control.Widget().setFocus(Qt::OtherFocusReason);
    Enqueue(&control);
}

void FocusController::LeaveField()
{
    if (current_ == nullptr && waiting_.empty()) {
        return;
    }
    Control* focused = waiting_.empty() ? current_ : waiting_.back();
    if (Form* form = Form::Of(&focused->Widget())) {
        form->FocusSink().Widget().setFocus(Qt::OtherFocusReason);
        Enqueue(&form->FocusSink());
    }
    Flush();
}

bool FocusController::Refuses(const Control* target)
{
    if (validating_ || current_ == nullptr || current_ == target || !current_->Validate || !current_->Visible()) {
        return false;
    }
    if (target != nullptr && target->Widget().window() != current_->Widget().window()) {
        return false;
    }
    validating_ = true;
    bool refused = false;
    Fire([&] { refused = current_->Validate(); });
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
    // One that shows first: hiding the last visible control of a window would make it flicker.
    const std::vector<Control*> controls = std::exchange(deferred_, {});
    for (Control* control : controls) {
        if (control->Visible() != control->Widget().isVisibleTo(control->Widget().parentWidget())) {
            control->ApplyVisible();
        }
    }
}

void FocusController::Forget(Control& control)
{
    if (current_ == &control) {
        current_ = nullptr;
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
        // The press of this click may have moved the focus, and its handler must find that told.
        Flush();
        return false;
    case QEvent::KeyPress: {
        if (!receiver->isWidgetType()) {
            return false;
        }
        Flush();
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool moves = key == Qt::Key_Tab || key == Qt::Key_Backtab;
        return moves && current_ != nullptr && ControlOf(static_cast<QWidget*>(receiver)) == current_ &&
               Refuses(nullptr);
    }
    default: return false;
    }
}

bool FocusController::FilterPress(QWidget* widget, QEvent* event)
{
    Flush();
    Control* target = ControlOf(widget);
    if (dynamic_cast<ListBox*>(target) != nullptr && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        // A right press neither selects nor takes the focus; the list acts when the button is released.
        return true;
    }
    const bool takesFocus = target != nullptr && (target->Widget().focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
    return takesFocus && Refuses(target);
}

} // namespace zelvia
