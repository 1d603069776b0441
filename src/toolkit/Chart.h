// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ChartData.h"
#include "toolkit/Control.h"

#include <QWidget>

class QPainter;

namespace zelvia
{

/// Draws a chart into a rectangle of logical pixels, 96 to the inch, in vectors: the same for a window, a picture and
/// paper. The background is left as it is.
void DrawChart(QPainter& painter, const QRectF& area, const ChartData& data);

/// The chart of a window. Its title is also its accessible name, its values are its description.
class Chart : public QWidget, public Control
{
    Q_OBJECT

public:
    Chart(QWidget* parent, const QString& name);

    const ChartData& Shown() const { return data_; }
    void Show(const ChartData& shown);

    /// Puts a picture of the chart on the clipboard, drawn on white at a size in logical pixels, not at its size in
    /// the window; on paper it is as large as on the screen.
    void EditCopy(const QSize& size) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ChartData data_;
};

} // namespace zelvia
