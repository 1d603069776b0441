// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Picture.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QWidget>

class QPainter;

namespace zelvia
{

/// The large face of the date, and of the counters' numbers.
QFont DateFont();

/// A caption in print, for the pictures that carry one.
Picture::Drawing CaptionDrawing(TextView caption, bool heading = false);

/// A colour between two; `part` 0 is the first, 1 the last.
QColor Mixed(const QColor& from, const QColor& to, double part);

// The pictograms of the counters.
void DrawCalendarLeaf(QPainter& painter, const QRectF& area);
void DrawShoe(QPainter& painter, const QRectF& area);
void DrawMilestone(QPainter& painter, const QRectF& area);
void DrawCup(QPainter& painter, const QRectF& area);

/// The open diary on its desk: paper, rules, binding and the printed words that are no control. Drawn once for each
/// scale of the screen.
class PaperSheet : public QWidget
{
    Q_OBJECT

public:
    explicit PaperSheet(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap cache_;
    bool shown_ = false;
};

} // namespace zelvia
