// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace zelvia
{

/// The inks and papers of the printed diary.
namespace Ink
{
inline constexpr QColor Paper{251, 246, 231};
inline constexpr QColor PaperShade{236, 226, 200};
inline constexpr QColor Slip{255, 253, 244};
inline constexpr QColor Rule{214, 200, 168}; ///< Printed lines that nothing hangs on.
inline constexpr QColor Edge{160, 138, 104}; ///< The border of what can be used: 3:1 or more on a page.
inline constexpr QColor Faded{116, 95, 66};  ///< Print that is off but still read: 4.5:1 or more on every paper.
inline constexpr QColor Print{92, 70, 46};
inline constexpr QColor PrintDark{58, 42, 28};
inline constexpr QColor Accent{158, 44, 32};
inline constexpr QColor Pen{26, 58, 140};
inline constexpr QColor Pencil{186, 174, 150}; ///< Of a value that nobody has written.
inline constexpr QColor Desk{92, 68, 48};
} // namespace Ink

/// The palette of every window of the program. It sets each role, so that nothing of the desktop's colours remains.
QPalette PagePalette();

/// A border of `width` along the inside of `place`, with its lines on whole pixels of the device.
void DrawBorder(QPainter& painter, const QRectF& place, const QColor& ink, int width = 1);

/// The ink for the border of a box filled with `under`: that of the paper or, where it does not stand out by 3:1, a
/// darker or a light one.
QColor EdgeInk(const QColor& under);

/// The ring around what has the focus, along the inside of `place` on the colour `under`. It stands out from that by
/// 3:1 or more on every desktop.
void DrawFocusRing(QPainter& painter, const QRect& place, const QColor& under);

/// The frame of a row of a list that the keys are at but that is not chosen: dots, nothing filled.
void DrawRowFrame(QPainter& painter, const QRect& place, const QColor& under);

} // namespace zelvia
