// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <functional>

namespace zelvia
{

class Button;

/// The title of every report of a printer.
inline constexpr TextView kPrintErrors = "STAMPA - ERRORE : ";

/// Plays a sheet to the system's default printer, without a dialog, and hands the job over when it is whole. Raises 482
/// when there is no printer, when it can't be begun and when the spool does not take the job; a begun job is dropped.
void PrintSheet(const Sheet& sheet);

/// What a button "Stampa" does: prints the sheet that `make` lays out, the button off meanwhile. A fault is reported
/// and leaves the button off, with the focus where it was before. True when all went well.
bool PrintByButton(Button& button, const std::function<Sheet()>& make);

/// Takes the printer's place in a test; an empty function puts the printer back.
void SetPrinterHandler(std::function<void(const Sheet&)> handler);

} // namespace zelvia
