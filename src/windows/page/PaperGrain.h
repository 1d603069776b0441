// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;
class QRect;

namespace zelvia
{

class Pixels;

/// The soft shade at the outer edges of an open book, where its leaves bend down; in pixels.
void DrawCurl(QPainter& painter, const Pixels& pixels, const QRect& page);

/// The laid lines, the chain lines and the fibres of handmade paper on a page that is filled already, in pixels; the
/// same on every drawing. Lines and distances are whole pixels: fractions would show as a moiré.
void DrawGrain(QPainter& painter, const Pixels& pixels, const QRect& page);

} // namespace zelvia
