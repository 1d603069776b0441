// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zelvia::test
{

/// A dot before each three digits from the right.
inline QString Grouped(long number)
{
    QString digits = QString::number(number);
    for (qsizetype place = digits.size() - 3; place > 0; place -= 3) {
        digits.insert(place, QLatin1Char('.'));
    }
    return digits;
}

} // namespace zelvia::test
