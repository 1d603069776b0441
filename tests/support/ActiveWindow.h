// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

namespace hand
{

/// Runs the event loop until `condition` holds; false when it does not within so many milliseconds. Where one press
/// follows the other, looking each millisecond is four times as fast as Qt Test's ten.
bool Await(const std::function<bool()>& condition, int milliseconds);

/// Waits until a window of the program has the keyboard, or for some seconds. Under Wayland it has none for a moment
/// when a box or a menu has gone, and Qt Test can't await an active window there.
void AwaitKeyboard();

/// Waits until the program, the window manager and the X server agree on the active window. Where a box has just gone
/// they don't for a moment: the manager may keep a click for itself, and a key reaches no window. Another program may
/// have the keyboard: then it goes on.
void AwaitAgreement();

/// Waits until `window` is the active one. A manager that has lost its place, as it does now and then when a window
/// over this one closes on a busy machine, is asked for the window, as a user would.
void AwaitFront(const QWidget& window);

} // namespace hand
