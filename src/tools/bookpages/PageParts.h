// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/bookpages/PageFlow.h"

#include <QColor>
#include <QFont>
#include <QTextLayout>

#include <memory>

// What the pages of a book are made of.
namespace zelvia
{

/// The faces of a page, unhinted, as paper wants them.
QFont BookFont(int pixels, bool bold = false);
QFont BookPen(int pixels);
QFont BookDateFont(int pixels);

/// A text in lines of a width.
class Lines
{
public:
    /// What takes more than `most` lines ends with "…".
    Lines(const QString& text, const QFont& font, const QColor& ink, double width,
          Qt::Alignment alignment = Qt::AlignLeft, int most = 1000);

    double Height() const { return height_; }
    double Width() const { return layout_->maximumWidth(); }
    int Count() const { return layout_->lineCount(); }
    void Draw(QPainter& painter, double x, double y) const;

private:
    std::shared_ptr<QTextLayout> layout_;
    QColor ink_;
    double height_ = 0;
};

/// A word at a place of the painter, its baseline at y.
void DrawWord(QPainter& painter, double x, double y, const QString& text, const QFont& font, const QColor& ink,
              Qt::Alignment alignment = Qt::AlignLeft);

/// A rule across.
void DrawRule(QPainter& painter, double x, double y, double width, double thickness, const QColor& ink);

/// Adds a heading, on the next page unless there is room for as much below it.
void AddHeading(PageFlow& flow, const BookHeading& heading, double below);

/// The room that a table begins with.
double TableRoom(const PageFlow& flow, const BookTable& table);

double ChartHeight(const ChartData& chart, double width);

// Each adds a part to the pages.
void AddPart(PageFlow& flow, const BookParagraph& paragraph);
void AddPart(PageFlow& flow, const BookFigures& figures);
void AddPart(PageFlow& flow, const BookDots& dots);
void AddPart(PageFlow& flow, const ChartData& chart);
void AddPart(PageFlow& flow, const BookCurves& curves);
void AddPart(PageFlow& flow, const BookDay& day);
void AddPart(PageFlow& flow, const BookTable& table);

} // namespace zelvia
