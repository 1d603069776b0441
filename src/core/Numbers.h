// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/RunTimeError.h"

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>

namespace zelvia
{

/// A signed integer whose arithmetic is limited to the range of its width: a result beyond it raises error 6 at that
/// operation. An operation on an i16 and an i32 is done as i32; a plain integer takes the width of its partner.
template <std::signed_integral Rep>
class CheckedInteger
{
public:
    constexpr CheckedInteger() = default;

    /// Raises error 6 when `value` is out of range.
    template <std::integral Integer>
    constexpr CheckedInteger(Integer value) : value_(Narrow(static_cast<std::int64_t>(value)))
    {
    }

    /// Widens, or narrows on request; raises error 6 when the value is out of range.
    template <std::signed_integral Other>
    constexpr explicit(sizeof(Other) > sizeof(Rep)) CheckedInteger(CheckedInteger<Other> other)
        : value_(Narrow(other.value()))
    {
    }

    constexpr Rep value() const { return value_; }

    friend constexpr CheckedInteger operator+(CheckedInteger a, CheckedInteger b) { return {Wide(a) + Wide(b)}; }
    friend constexpr CheckedInteger operator-(CheckedInteger a, CheckedInteger b) { return {Wide(a) - Wide(b)}; }
    friend constexpr CheckedInteger operator*(CheckedInteger a, CheckedInteger b) { return {Wide(a) * Wide(b)}; }
    friend constexpr CheckedInteger operator-(CheckedInteger a) { return {-Wide(a)}; }

    constexpr CheckedInteger& operator+=(CheckedInteger other) { return *this = *this + other; }
    constexpr CheckedInteger& operator-=(CheckedInteger other) { return *this = *this - other; }

    friend constexpr bool operator==(CheckedInteger, CheckedInteger) = default;
    friend constexpr std::strong_ordering operator<=>(CheckedInteger, CheckedInteger) = default;

private:
    static constexpr std::int64_t Wide(CheckedInteger number) { return number.value_; }

    static constexpr Rep Narrow(std::int64_t value)
    {
        if (value < std::numeric_limits<Rep>::min() || value > std::numeric_limits<Rep>::max()) {
            throw ErroreRunTime(Errore::Overflow);
        }
        return static_cast<Rep>(value);
    }

    Rep value_ = 0;
};

using i16 = CheckedInteger<std::int16_t>;
using i32 = CheckedInteger<std::int32_t>;
using f32 = float;
static_assert(std::numeric_limits<f32>::is_iec559 && sizeof(f32) == 4, "singles are IEEE 32-bit floats");

/// Rounds to the nearest integer, ties to even, as storing a float in an i16 or i32 does.
/// Raises error 6 when the result is out of the target's range.
template <typename Target>
Target RoundTo(double value)
{
    const double rounded = std::nearbyint(value);
    constexpr double limit = 1e15;
    if (!(rounded > -limit && rounded < limit)) {
        throw ErroreRunTime(Errore::Overflow);
    }
    return Target(static_cast<std::int64_t>(rounded));
}

/// A quotient of floats; raises error 6 for 0 by 0, 11 for anything else by 0.
template <std::floating_point Float>
Float Quotient(Float dividend, Float divisor)
{
    if (divisor == 0) {
        throw ErroreRunTime(dividend == 0 ? Errore::Overflow : Errore::DivisionePerZero);
    }
    return dividend / divisor;
}

/// Drops the fraction towards zero.
inline double Fix(double value)
{
    return std::trunc(value);
}

} // namespace zelvia
