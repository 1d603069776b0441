// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QString>

namespace zelvia
{

QString ToQString(TextView text);

/// A character outside the set becomes "?".
Text FromQString(const QString& string);

/// True when every character of `string` is in the set.
bool IsInCharacterSet(const QString& string);

} // namespace zelvia
