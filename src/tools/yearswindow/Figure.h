// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace zelvia
{

/// What the numbers of a figure are.
enum class Measure { Kilometres, Pace, Kilograms };

struct FigurePoint {
    double place = 0; ///< Along the figure.
    double value = 0; ///< Kilometres, seconds for a kilometre, or kilograms.
    QString spoken;   ///< All that is to be said of it.
};

/// Points from left to right.
struct FigureSeries {
    /// Points stand alone, without a line from one to the next.
    enum class Look { Bars, Line, Points, Steady, Faint };

    QString name;
    Look look = Look::Line;
    QList<FigurePoint> points;
};

struct FigureTick {
    double place = 0;
    QString label;
};

/// A chart and, as a table, the numbers that it shows.
struct Figure {
    QString title;
    Measure measure = Measure::Kilometres;
    QList<FigureSeries> series;
    QList<FigureTick> ticks;
    bool named = false; ///< Each tick is a name of its own; of others every second or third may do.
    QStringList heads;
    QList<QStringList> rows;

    bool IsEmpty() const
    {
        for (const FigureSeries& one : series) {
            if (!one.points.isEmpty()) {
                return false;
            }
        }
        return true;
    }
};

} // namespace zelvia
