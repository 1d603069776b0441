// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/CommonDialog.h"

namespace zelvia
{

/// Runs the save dialog until the user picks a name in CartellaDiario, and writes the table in memory there, or
/// cancels: FlagTabellaSalvata is then 1. Reports its own failure. True when the file was written.
bool SalvaTabellaConNome(CommonDialog& dialog);

} // namespace zelvia
