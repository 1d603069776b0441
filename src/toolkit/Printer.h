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

/// Plays a sheet to the system's default printer, without a dialog, and submits the job when it is complete. Raises 482
/// when there is no printer, when the job can't be started and when the spooler rejects it; a started job is dropped.
void PrintSheet(const Sheet& sheet);

/// What a button "Stampa" does: prints the sheet that `make` lays out, with the button disabled meanwhile. A failure is
/// reported and leaves the button disabled, with the focus where it was before. True when all went well.
bool PrintByButton(Button& button, const std::function<Sheet()>& make);

/// Replaces the printer in a test; an empty function restores it.
void SetPrinterHandler(std::function<void(const Sheet&)> handler);

} // namespace zelvia
