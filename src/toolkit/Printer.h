// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <functional>

namespace zelvia
{

/// Plays a sheet to the system's default printer, without a dialog, and hands the job over when it is whole. Raises 482
/// when there is no printer, when it can't be begun and when the spool does not take the job; a begun job is dropped.
void PrintSheet(const Sheet& sheet);

/// Takes the printer's place in a test; an empty function puts the printer back.
void SetPrinterHandler(std::function<void(const Sheet&)> handler);

} // namespace zelvia
