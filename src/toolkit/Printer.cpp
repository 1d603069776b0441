// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Printer.h"

#include "core/RunTimeError.h"
#include "toolkit/Button.h"
#include "toolkit/FocusController.h"
#include "toolkit/SheetPlayer.h"

#include <utility>

namespace zelvia
{
namespace
{

std::function<void(const Sheet&)>& PrinterHandler()
{
    static std::function<void(const Sheet&)> handler;
    return handler;
}

} // namespace

void SetPrinterHandler(std::function<void(const Sheet&)> handler)
{
    PrinterHandler() = std::move(handler);
}

void PrintSheet(const Sheet& sheet)
{
    if (PrinterHandler()) {
        PrinterHandler()(sheet);
        return;
    }
    PlaySheet(sheet);
}

bool PrintByButton(Button& button, const std::function<Sheet()>& make)
{
    bool printed = false;
    FocusController::Instance().Grey(button);
    Trap(kPrintErrors, [&] {
        PrintSheet(make());
        printed = true;
    });
    FocusController::Instance().EndGrey(button, printed);
    return printed;
}

} // namespace zelvia
