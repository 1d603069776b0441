// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Desk.h"
#include "monkey/Dice.h"
#include "monkey/Trail.h"

#include <QPoint>
#include <QWidget>

#include <functional>

namespace zelvia::monkey
{

/// The monkey's hand: real mouse and key events, each noted in the trail before it is done. Its window comes to the
/// front first, as it does under a user's click.
class Hand
{
public:
    Hand(Desk& desk, Dice& dice, Trail& trail) : desk_(desk), dice_(dice), trail_(trail) {}

    void Click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton);
    void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClickAt(QWidget& widget, QPoint place);
    /// Presses on one widget and releases on another place of its window.
    void Drag(QWidget& widget, QPoint from, QPoint to);
    void Wheel(QWidget& widget, int notches);
    /// Holds an arrow of a spin control until it has repeated some times.
    void Hold(UpDown& spin, bool upper, int times);
    void Step(UpDown& spin, bool upper);
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Type(const QString& text);
    /// By the keys of the clipboard.
    void Paste(const QString& text);

    /// A place inside a widget, by the dice.
    QPoint AnyPlace(const QWidget& widget);

private:
    static QString Name(const QWidget& widget);
    bool ToFront(QWidget& widget);

    Desk& desk_;
    Dice& dice_;
    Trail& trail_;
};

/// The visible and enabled controls of a class in a window, in the order of their making.
template <typename Class>
QList<Class*> Shown(const QWidget& window, const std::function<bool(const Class&)>& fits = {})
{
    QList<Class*> found;
    for (Class* control : window.findChildren<Class*>()) {
        if (control->isVisible() && control->isEnabled() && !control->rect().isEmpty() &&
            control->window() == &window && (!fits || fits(*control))) {
            found << control;
        }
    }
    return found;
}

} // namespace zelvia::monkey
