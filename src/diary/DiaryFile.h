// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

namespace zelvia::Module1
{

/// Writes days 1..366 of Giorni to `path`, 136 values a day. Reports its own failure, under "ERRORE : "; the file is
/// then left as far as it was written.
void SalvaDiario(TextView path);

/// Reads `path` into days 1..366 of Giorni, in place and unchecked. A missing file is silent and changes nothing; any
/// other failure is reported under "**ERRORE : " and leaves what was read so far.
void CaricaDiario(TextView path);

} // namespace zelvia::Module1
