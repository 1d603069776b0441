// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAbstractItemView;
class QKeyCombination;
class QKeyEvent;

/// The keys as the handlers of boxes and lists see them.
namespace zelvia
{

inline constexpr int kBackspace = 8;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;

/// The character that the handlers see for one of these keys, 0 for any other key.
int ControlKey(int key);

/// A key together with Shift, Ctrl and Alt, wherever it is on the keyboard.
QKeyCombination Chord(const QKeyEvent& key);

/// Hands Enter and Escape to the key handler of a list, if it has one. False for any other key.
bool FireListKey(const QKeyEvent& event, const std::function<void(int keyAscii)>& handler);

/// Gives a list that has the focus and no row that the keys are at the first one, which is framed and not selected:
/// what Qt does when the focus comes.
void FrameFirstRow(QAbstractItemView& list);

/// Throws away a printable character that is no digit.
void ThrowAwayNonDigit(int& keyAscii);

} // namespace zelvia
