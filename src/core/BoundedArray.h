// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/RunTimeError.h"

#include <array>
#include <cstddef>

namespace zelvia
{

/// The place of `index` in an array of the indexes first..last. Raises error 9 for any other.
constexpr std::size_t OffsetWithin(int index, int first, int last)
{
    if (index < first || index > last) {
        throw ErroreRunTime(Errore::Indice);
    }
    return static_cast<std::size_t>(index - first);
}

/// An array of the indexes First..Last; any other index raises error 9.
template <typename T, int First, int Last>
class BoundedArray
{
public:
    static constexpr int kFirst = First;
    static constexpr int kLast = Last;

    constexpr T& operator[](int index) { return items_[Offset(index)]; }
    constexpr const T& operator[](int index) const { return items_[Offset(index)]; }
    constexpr T& operator[](i16 index) { return (*this)[static_cast<int>(index.value())]; }
    constexpr const T& operator[](i16 index) const { return (*this)[static_cast<int>(index.value())]; }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    friend bool operator==(const BoundedArray&, const BoundedArray&) = default;

private:
    static constexpr std::size_t Offset(int index) { return OffsetWithin(index, First, Last); }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> items_{};
};

} // namespace zelvia
