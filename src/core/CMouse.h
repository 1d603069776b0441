// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"

#include <functional>
#include <optional>

namespace zelvia
{

namespace MousePointer
{
inline constexpr int Default = 0;
inline constexpr int Hourglass = 11;
inline constexpr int Custom = 99;
} // namespace MousePointer

/// The pointer that the whole screen shows for this program.
i16 ScreenMousePointer();
void SetScreenMousePointer(i16 pointer);

/// Applies a change of the pointer to the screen; an empty function does nothing.
void SetScreenMousePointerHandler(std::function<void(i16)> handler);

/// Changes the screen's pointer during its lifetime: its destructor restores the pointer from before the first change,
/// however the routine that holds it ends.
class CMouse
{
public:
    CMouse() = default;
    CMouse(const CMouse&) = delete;
    CMouse& operator=(const CMouse&) = delete;
    ~CMouse();

    void SetPointer(i16 pointer);

private:
    std::optional<i16> saved_;
};

} // namespace zelvia
