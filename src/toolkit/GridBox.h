// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Label.h"

#include <QFont>
#include <QRect>
#include <QString>

/// What the windows with grids of boxes have in common.
namespace zelvia
{

/// The character that Enter sends to a box's KeyPress.
inline constexpr int kEnter = 13;

/// The name of an element of an array of controls: txtKm(5).
QString Indexed(const char* name, int index);

Label* MakeLabel(QWidget* parent, const QString& name, TextView caption, const QRect& place, const QFont& font);

/// Throws away a printable character that is no digit.
void ThrowAwayNonDigit(int& keyAscii);

/// True when `value` is not above `limit`; else shows the message with the exclamation icon.
bool LimitHolds(double value, double limit, TextView message);

} // namespace zelvia
