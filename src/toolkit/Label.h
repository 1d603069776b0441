// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"
#include "toolkit/QtText.h"

#include <QLabel>

namespace zelvia
{

/// Whether the keyboard can do what a click does.
enum class KeyReach { Reachable, MouseOnly };

/// A text on the page. It takes no focus from the mouse; one that acts when clicked can be reached with Tab and acts
/// on Enter and Space too.
class Label : public QLabel, public Control
{
    Q_OBJECT

public:
    Label(QWidget* parent, const QString& name);

    Text Caption() const { return FromQString(text()); }
    void SetCaption(TextView caption);

    /// Gives the label a click and, unless another control does the same for the keyboard, a place in the order of Tab.
    void OnClick(std::function<void()> click, KeyReach reach = KeyReach::Reachable);

    /// A button was released over the label.
    std::function<void(Qt::MouseButton button, const QPoint& globalPosition)> MouseUp;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void()> click_;
    bool pressed_ = false;
};

} // namespace zelvia
