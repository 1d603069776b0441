// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

namespace zelvia::Module1
{

/// Drops the first dot of the text if there is one; then, with 4 characters or more, puts a dot before its last three.
Text ConPuntoMigliaia(TextView text);

/// Drops the first dot of the text if there is one.
Text SenzaPuntoMigliaia(TextView text);

/// Converts each A-Z that follows an ASCII letter to lower case, in place, and returns the text.
Text ControlloMaiuscole(Text& text);

} // namespace zelvia::Module1
