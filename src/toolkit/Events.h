// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace zelvia
{

/// Alive while a routine of the program runs. No change of focus is told and no timer ticks meanwhile, nested event
/// loops of boxes and dialogs included.
class Routine
{
public:
    Routine();
    ~Routine();
    Routine(const Routine&) = delete;
    Routine& operator=(const Routine&) = delete;

    static bool Running();
};

/// Runs the handler of an event, if there is one. An error that no trap of its own took is reported under the bare
/// title; nothing leaves this function.
void Fire(const std::function<void()>& handler);

} // namespace zelvia
