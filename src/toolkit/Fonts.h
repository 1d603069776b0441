// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QFont>

namespace zelvia
{

/// A font by its name, with metric-compatible families as fallback; the size in logical pixels.
QFont PageFont(TextView family, int pixels);

} // namespace zelvia
