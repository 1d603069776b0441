// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <random>

namespace zelvia::monkey
{

/// What decides all that the monkey does. The same seed throws the same numbers on every machine.
class Dice
{
public:
    explicit Dice(quint64 seed) : engine_(seed) {}

    /// 0..count-1; each call is one throw, whatever the count. 0 for a count below 2.
    int Below(int count)
    {
        const quint64 thrown = engine_() >> 16U;
        return count < 2 ? 0 : static_cast<int>(thrown % static_cast<quint64>(count));
    }

    int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
    bool OneIn(int chances) { return Below(chances) == 0; }

    template <typename List>
    const auto& Of(const List& list)
    {
        return list[static_cast<decltype(std::size(list))>(Below(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace zelvia::monkey
