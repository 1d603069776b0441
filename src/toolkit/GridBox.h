// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Keys.h"
#include "toolkit/Label.h"

#include <QFont>
#include <QRect>
#include <QString>

/// What the windows with grids of boxes have in common.
namespace zelvia
{

/// The name of an element of an array of controls: txtKm(5).
QString Indexed(const char* name, int index);

Label* MakeLabel(QWidget* parent, const QString& name, TextView caption, const QRect& place, const QFont& font);

/// True when `value` is not above `limit`; else shows the message with the exclamation icon.
bool LimitHolds(double value, double limit, TextView message);

} // namespace zelvia
