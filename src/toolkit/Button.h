// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"

#include <QPushButton>

#include <optional>

namespace zelvia
{

/// A push button; Enter presses it as Space does. No button of a window is its default.
class Button : public QPushButton, public Control
{
    Q_OBJECT

public:
    Button(QWidget* parent, const QString& name, TextView caption);

    std::function<void()> Click;

    /// Of a button that switches something: whether that is on, for screen readers; none for any other.
    std::optional<bool> Switched() const { return switched_; }
    void SetSwitched(bool on);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::optional<bool> switched_;
};

/// A button in the face of the printed pages.
Button* MakeButton(QWidget* parent, const char* name, TextView caption, const QRect& place,
                   std::function<void()> click = {});

} // namespace zelvia
