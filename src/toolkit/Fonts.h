// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QFont>

namespace zelvia
{

/// A font by its name, with metric-compatible families as fallback; the size in logical pixels.
QFont PageFont(TextView family, int pixels);

/// The face of everything printed: captions, heads, buttons, menus, boxes, the guide.
QFont PrintFont(int pixels, bool bold = false);
/// The handwriting of what the runner entered.
QFont PenFont(int pixels);

} // namespace zelvia
