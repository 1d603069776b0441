// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

class QStyle;

namespace zelvia
{

/// The inks and papers of the printed diary.
namespace Ink
{
inline constexpr QColor Paper{251, 246, 231};
inline constexpr QColor PaperShade{236, 226, 200};
inline constexpr QColor Slip{255, 253, 244};
inline constexpr QColor Rule{214, 200, 168};
inline constexpr QColor Print{92, 70, 46};
inline constexpr QColor PrintDark{58, 42, 28};
inline constexpr QColor Accent{158, 44, 32};
inline constexpr QColor Pen{26, 58, 140};
inline constexpr QColor Desk{92, 68, 48};
} // namespace Ink

/// The palette of everything on the paper, independent of the desktop's colours.
QPalette PagePalette();

/// The style of the program, for the application to own.
QStyle* MakePageStyle();

} // namespace zelvia
