// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ChartData.h"

#include <QRectF>

class QPainter;

namespace zelvia
{

/// Draws a chart into a rectangle of logical pixels, 96 to the inch, in vectors: the same for a window, a picture and
/// paper. The ground is left as it is.
void DrawChart(QPainter& painter, const QRectF& area, const ChartData& data);

} // namespace zelvia
