// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"

#include <QString>

class QPainter;
class QRect;
class QRectF;

namespace zelvia
{

// The painters have been scaled to the page; those of the head and of the index begin at the corner of their label.

/// The head of the page: the day as a large numeral with weekday, month and year beside it, and the days of its week.
/// `text` is the date as the page words it.
void DrawDateHead(QPainter& painter, const QString& text, CalendarDate date);

/// What shows, while there are no arrows for it, that a part of the date can be stepped, and its name.
void DrawArrowsAtRest(QPainter& painter, const QRect& cell, const QString& part);

/// What each of the three arrows of the distance steps, to its right.
void DrawUnits(QPainter& painter, const QRectF& area);

/// The tabs of the months at the edge of the page, the one of `month` in front.
void DrawThumbIndex(QPainter& painter, int month);

} // namespace zelvia
