// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace zelvia
{

// The colours of a control, in the palette roles that it paints with: Base and Text for a box, Window and WindowText
// for a label.
void SetBackColour(QWidget& control, const QColor& colour);
void SetForeColour(QWidget& control, const QColor& colour);
QColor BackColour(const QWidget& control);

} // namespace zelvia
