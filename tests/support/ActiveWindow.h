// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace hand
{

/// Waits until the program, the window manager and the X server agree on the active window. Where a box has just gone
/// they don't for a moment: the manager may keep a click for itself, and a key reaches no window. Another program may
/// have the keyboard: then it goes on.
void AwaitAgreement();

/// Waits until `window` is the active one. A manager that has lost its place, as it does now and then when a window
/// over this one closes on a busy machine, is asked for the window, as a user would.
void AwaitFront(const QWidget& window);

} // namespace hand
