// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableCalculations.h"

#include "core/Conversions.h"
#include "diary/TimeAndPace.h"

namespace zelvia
{
namespace
{

bool AtLeastOne(const Text& box)
{
    return Val(box) >= 1;
}

bool IsZero(const Text& box)
{
    return Val(box) == 0;
}

bool HasDistance(const RowGroups& row)
{
    return AtLeastOne(row.km) || AtLeastOne(row.metres);
}

bool HasTime(const RowGroups& row)
{
    return AtLeastOne(row.hours) || AtLeastOne(row.minutes) || AtLeastOne(row.seconds);
}

bool HasAverage(const RowGroups& row)
{
    return AtLeastOne(row.averageMinutes) || AtLeastOne(row.averageSeconds);
}

i32 SecondsOf(const RowGroups& row)
{
    const i32 hours = Parsed<i32>(row.hours);
    const i32 minutes = Parsed<i32>(row.minutes);
    const i32 seconds = Parsed<i32>(row.seconds);
    if (hours >= 1) {
        return (hours * 60 + minutes) * 60 + seconds;
    }
    if (minutes > 0) {
        return minutes * 60 + seconds;
    }
    return seconds >= 1 ? seconds : i32(0);
}

/// Seconds per kilometre: the whole seconds are short arithmetic.
f32 SecondsPerKm(const RowGroups& row)
{
    const i16 whole = Parsed<i16>(row.averageMinutes) * 60 + Parsed<i16>(row.averageSeconds);
    const auto thousandths = static_cast<f32>(Val(row.averageThousandths));
    return thousandths / 1000.0F + static_cast<f32>(whole.value());
}

i32 MetresOf(const RowGroups& row)
{
    return Parsed<i32>(row.km) * 1000 + Parsed<i32>(row.metres);
}

} // namespace

bool AsksForAverage(const RowGroups& row)
{
    return HasDistance(row) && HasTime(row) && IsZero(row.averageMinutes) && IsZero(row.averageSeconds);
}

bool AsksForTime(const RowGroups& row)
{
    return HasDistance(row) && IsZero(row.hours) && IsZero(row.minutes) && IsZero(row.seconds) && HasAverage(row);
}

bool AsksForDistance(const RowGroups& row)
{
    return IsZero(row.km) && IsZero(row.metres) && HasTime(row) && HasAverage(row);
}

bool OnlyOneGroup(const RowGroups& row)
{
    const bool average = AtLeastOne(row.averageMinutes) && AtLeastOne(row.averageSeconds);
    return (HasDistance(row) ? 1 : 0) + (HasTime(row) ? 1 : 0) + (average ? 1 : 0) == 1;
}

std::optional<RowAverage> AverageFrom(const RowGroups& row)
{
    const std::optional<Pace> pace = PaceOf(MetresOf(row), SecondsOf(row));
    if (!pace) {
        return std::nullopt;
    }
    return RowAverage{pace->minutes, pace->seconds, Format(static_cast<double>(pace->thousandths), "000.00")};
}

RowDistance DistanceFrom(const RowGroups& row)
{
    const double duration = SecondsOf(row).value();
    const auto kilometres = static_cast<f32>(Quotient<double>(duration, static_cast<double>(SecondsPerKm(row))));
    const i32 km = RoundTo<i32>(Fix(static_cast<double>(kilometres)));
    const double rest = (static_cast<double>(kilometres) - km.value()) * 1000.0;
    return {km, RoundTo<i32>(rest)};
}

RowTime TimeFrom(const RowGroups& row)
{
    const auto metres = static_cast<f32>(MetresOf(row).value());
    const f32 duration = SecondsPerKm(row) / 1000.0F * metres;
    const i32 total = RoundTo<i32>(static_cast<double>(duration));
    const i32 hours = total.value() / 3600;
    const i32 rest = total - hours * 3600;
    const i32 minutes = rest.value() / 60;
    return {hours, minutes, rest - minutes * 60};
}

} // namespace zelvia
