// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

/// Mouse and keyboard of the X server that this program is connected to, moved through the server's test extension:
/// what comes of it is the server's own input, for whatever window the server and the window manager think fit.
namespace hand
{

/// Moves the pointer to a place of a window, in the window's own coordinates.
void MovePointer(const QWidget& window, QPoint position);

/// Presses or releases a button of the mouse at the pointer: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
/// `delay` milliseconds after what came before.
void MoveButton(int number, bool down, unsigned delay = 0);

/// Strikes a key while the modifiers are held.
void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers);

/// Strikes the keys of a text. False, with nothing struck, when the keyboard has no key for one of its characters.
bool StrikeText(const QString& text);

} // namespace hand
