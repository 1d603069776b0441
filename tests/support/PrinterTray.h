// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/RunTimeError.h"
#include "support/SheetLines.h"
#include "toolkit/Printer.h"

#include <functional>
#include <vector>

namespace zelvia::test
{

/// Takes the printer's place while it lives: keeps what is printed, or has none and refuses it.
class PrinterTray
{
public:
    PrinterTray()
    {
        SetPrinterHandler([this](const Sheet& sheet) {
            if (whilePrinting) {
                whilePrinting();
            }
            if (broken) {
                throw ErroreRunTime(Errore::Stampante);
            }
            for (const SheetOperation& operation : sheet.Operations()) {
                if (const auto* picture = std::get_if<SheetPicture>(&operation); picture != nullptr && picture->copy) {
                    picture->copy();
                }
            }
            if (atTheEnd) {
                atTheEnd();
            }
            sheets.push_back(sheet);
        });
    }
    ~PrinterTray() { SetPrinterHandler({}); }
    PrinterTray(const PrinterTray&) = delete;
    PrinterTray& operator=(const PrinterTray&) = delete;

    /// The text of a row of the sheet printed last.
    QByteArrayList Row(int y) const { return SheetRow(sheets.back(), y); }

    std::vector<Sheet> sheets;
    bool broken = false;
    std::function<void()> whilePrinting; ///< Before anything is drawn.
    std::function<void()> atTheEnd;      ///< When all is drawn, a picture of the clipboard too.
};

/// The report of a printer that failed.
inline constexpr const char* kPrinterReport = "STAMPA - ERRORE : 482 Errore della stampante";

} // namespace zelvia::test
