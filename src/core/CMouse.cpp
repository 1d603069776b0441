// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/CMouse.h"

#include <utility>

namespace zelvia
{
namespace
{

struct Screen {
    i16 pointer = MousePointer::Default;
    std::function<void(i16)> handler;
};

Screen& TheScreen()
{
    static Screen screen;
    return screen;
}

} // namespace

i16 ScreenMousePointer()
{
    return TheScreen().pointer;
}

void SetScreenMousePointer(i16 pointer)
{
    TheScreen().pointer = pointer;
    if (TheScreen().handler) {
        TheScreen().handler(pointer);
    }
}

void SetScreenMousePointerHandler(std::function<void(i16)> handler)
{
    TheScreen().handler = std::move(handler);
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
