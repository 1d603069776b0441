// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

namespace zelvia
{

/// Prints a sheet on the system's default printer. Raises 482 when there is none, or when it rejects the job, which is
/// then dropped.
void PlaySheet(const Sheet& sheet);

} // namespace zelvia
