// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QStyle>

class QPainter;

namespace zelvia
{

/// Draws an icon on a field of 32 by 32.
using IconDrawing = void (*)(QPainter& painter);

/// An icon that is drawn in the size it is asked for.
QIcon DrawnIcon(IconDrawing drawing);

/// The drawing of one of the style's icons: of the four kinds of box, of the file dialog, of a menu bar's arrow. Null
/// for any other.
IconDrawing StandardDrawing(QStyle::StandardPixmap icon);

/// The program's icon, a page of the diary with a shoe.
void DrawProgramIcon(QPainter& painter);

} // namespace zelvia
