// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

namespace zelvia
{

/// What every control of a window has besides its widget: a visibility and a focus that follow the rules of
/// FocusController. A control's widget class derives from both.
class Control
{
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    QWidget& Widget() const { return *widget_; }

    /// What the program last asked for; on the screen it may follow a moment later, at the end of a change of focus.
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    /// Gives the focus by program. The control that has it may refuse (Validate), and a hidden control never takes it.
    void SetFocus();

    std::function<void()> GotFocus;
    std::function<void()> LostFocus;

    /// Asked before the focus goes to another control of the same window; true refuses.
    std::function<bool()> Validate;

    /// The focus was given by a key, by program or by an opening, not with the mouse.
    virtual void OnFocusGiven() {}

protected:
    explicit Control(QWidget* widget);
    virtual ~Control();

private:
    friend class FocusController;
    void ApplyVisible();

    QWidget* widget_;
    bool visible_ = true;
};

/// The control that is or contains `widget`, or null.
Control* ControlOf(QWidget* widget);

} // namespace zelvia
