// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Picture.h"

#include <QColor>
#include <QFont>

class QPainter;

namespace zelvia
{

/// The large face of the date.
QFont DateFont();

/// The same by the name of a family that is installed, for what is drawn: asked for one that is not, Qt has fontconfig
/// sort all fonts, 2.5 million instructions of the start.
QFont HeadFont();

/// A face of the page as it is shown `factor` times larger.
QFont Enlarged(QFont font, double factor);

/// A caption in print, for the pictures that carry one.
Picture::Drawing CaptionDrawing(TextView caption, bool heading = false);

/// A colour between two; `part` 0 is the first, 1 the last.
QColor Mixed(const QColor& from, const QColor& to, double part);

// The pictograms of the counters.
void DrawCalendarLeaf(QPainter& painter, const QRectF& area);
void DrawShoe(QPainter& painter, const QRectF& area);
void DrawMilestone(QPainter& painter, const QRectF& area);
void DrawCup(QPainter& painter, const QRectF& area);

/// The wood of the desk.
void DrawDesk(QPainter& painter, const QRect& place);

// The painters of what follows have been scaled to the page: places and faces are those of PageLayout. Upright lines
// and edges are drawn with Pixels.

/// A text in the face that a label has beside it: of whole pixels, whatever the scale of the page.
void DrawWord(QPainter& painter, const QRectF& place, const QString& word, const QFont& font, const QColor& ink,
              Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);

/// The open diary: paper, rules, binding and the printed words that are no control.
void DrawPage(QPainter& painter);

} // namespace zelvia
