// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <initializer_list>

/// The user's hand in a test: mouse and keys enter where the machine's own do. On an X display they are true input of
/// the X server and reach whatever window the server thinks fit; offscreen they enter at the platform's border. Each
/// call returns when the program has seen the event, or fails the test after some seconds.
namespace hand
{

/// True on an X display.
bool OnX11();

/// The middle of a widget, in its own coordinates.
QPoint Middle(const QWidget& widget);

void MoveTo(QWidget& widget, QPoint position);
void Press(QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);
void Release(QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);

/// Press and release at once, before the program had time for anything in between. Never half of a double click.
void Click(QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);
void Click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton);
void DoubleClick(QWidget& widget, QPoint position);

/// Turns the wheel by notches, up when positive.
void Wheel(QWidget& widget, QPoint position, int notches);

/// A key to whatever has the keyboard.
void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// One key after the other.
void Keys(std::initializer_list<QKeyCombination> keys);
void Type(const QString& text);

/// On an X display only: input whose arrival in this program is not waited for, in the words of xdotool.
void Raw(const QStringList& words);

/// On an X display only: the window that the window manager considers active, 0 for none. It learns
/// of it later than the program at times. Keys that the manager acts on go by this.
WId ManagersActiveWindow();

/// Waits until that is `window`. On a busy machine the manager takes its time, and may change its mind on the way.
void AwaitManager(WId window);

/// On an X display only: a key for the window manager, in the words of xdotool. A manager that is still busy with a new
/// window misses keys; as a user would, this presses again, a few times, until `done`.
void KeyForManager(const QStringList& words, const std::function<bool()>& done);

} // namespace hand
