// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

namespace zelvia
{

/// Prints a sheet on the system's default printer. Raises 482 when there is none, or when it does not take the job,
/// which is dropped then.
void PlaySheet(const Sheet& sheet);

} // namespace zelvia
