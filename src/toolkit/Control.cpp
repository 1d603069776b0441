// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Control.h"

#include "toolkit/FocusController.h"

namespace zelvia
{

Control::Control(QWidget* widget) : widget_(widget) {}

Control::~Control()
{
    FocusController::Instance().Forget(*this);
}

void Control::SetVisible(bool visible)
{
    visible_ = visible;
    if (!FocusController::Instance().DeferVisibility(*this)) {
        ApplyVisible();
    }
}

void Control::ApplyVisible()
{
    if (!visible_) {
        FocusController::Instance().LeaveHidden(*this);
    }
    widget_->setVisible(visible_);
    if (visible_) {
        widget_->raise();
    }
}

void Control::SetFocus()
{
    FocusController::Instance().SetFocus(*this);
}

Control* ControlOf(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (auto* control = dynamic_cast<Control*>(widget)) {
            return control;
        }
    }
    return nullptr;
}

} // namespace zelvia
