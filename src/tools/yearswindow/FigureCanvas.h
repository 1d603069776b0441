// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/yearswindow/Figure.h"

#include <QFont>
#include <QWidget>

// The library's header uses the keywords of Qt that this system is built without.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#define foreach Q_FOREACH
#include <qcustomplot.h>
#undef signals
#undef slots
#undef foreach

namespace zelvia
{

inline constexpr int kFigurePadding = 6; ///< Around the value that is pointed at.

/// The face of labels, legend and values.
QFont FigureFont(int pixels = 12);

/// A plot in the look of the program's charts: title, legend and axes, and what shows where one points.
struct FigureCanvas {
    explicit FigureCanvas(QWidget& parent);

    /// Takes everything drawn away but title and axes.
    void Clear();
    /// The axis of values: minutes and seconds, or numbers with as many decimals as they differ in.
    void SetValues(Measure measure, const QCPRange& range);

    /// Writes the title as large as the figure has room for.
    void FitTitle();
    /// The margin at the left of the field, in which the numbers stand, is at least so wide.
    void SetLeast(int left);

    QCustomPlot* plot;
    QCPTextElement* title = nullptr;
    QCPItemTracer* ring = nullptr; ///< Around the point that is pointed at.
    QCPItemText* value = nullptr;  ///< Beside it.
    QCPItemRect* band = nullptr;   ///< A stretch that is being drawn with the mouse.

private:
    void AddHead();
    void AddMarks();
};

} // namespace zelvia
