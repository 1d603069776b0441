// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/CMouse.h"

#include <utility>

namespace zelvia
{
namespace
{

i16 screenPointer = MousePointer::Default;
std::function<void(i16)> pointerHandler;

} // namespace

i16 ScreenMousePointer()
{
    return screenPointer;
}

void SetScreenMousePointer(i16 pointer)
{
    screenPointer = pointer;
    if (pointerHandler) {
        pointerHandler(pointer);
    }
}

void SetScreenMousePointerHandler(std::function<void(i16)> handler)
{
    pointerHandler = std::move(handler);
}

CMouse::~CMouse()
{
    if (saved_) {
        SetScreenMousePointer(*saved_);
    }
}

void CMouse::SetPointer(i16 pointer)
{
    if (!saved_) {
        saved_ = ScreenMousePointer();
    }
    SetScreenMousePointer(pointer);
}

} // namespace zelvia
