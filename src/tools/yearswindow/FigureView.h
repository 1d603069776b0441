// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/yearswindow/FigurePlot.h"

#include <QWidget>

#include <optional>

namespace zelvia
{

/// A figure that can be pointed at, with the mouse or the arrows, and looked at more closely: wheel, a stretch drawn
/// with the mouse, "+" and "-"; a double click or "0" goes back to the whole.
class FigureView : public QWidget
{
    Q_OBJECT

public:
    explicit FigureView(QWidget* parent = nullptr);

    void Show(const Figure& figure);
    const Figure& Shown() const { return figure_; }

    /// What is said of the point that is pointed at; empty for none.
    QString Pointed() const;

    /// The stretch shown; all of it is the whole.
    const FigureSpan& Span() const { return plot_.Span(); }
    bool IsWhole() const;
    void ZoomIn() { Zoom(kCloser); }
    void ZoomOut() { Zoom(1 / kCloser); }
    void ShowWhole();

    /// In pixels of the view.
    QPointF PixelOf(FigurePlace place) const { return plot_.PixelOf(place); }
    QRect Field() const { return plot_.Field(); }

    /// What is shown, on white, as large as the program's charts are copied and printed.
    QImage Picture();

Q_SIGNALS:
    void PointedAt(const QString& what);
    void Zoomed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    static constexpr double kCloser = 0.7; ///< Of the stretch, for each step.

    bool TakeText(const QString& text);
    bool TakeKey(int key, Qt::KeyboardModifiers modifiers);
    void Point(std::optional<FigurePlace> place);
    FigurePlace FirstShown(int points) const;
    void Step(int points);
    void ChangeSeries(int by);
    void Zoom(double factor);
    void ZoomAround(double place, double factor);
    void Pan(double share);
    void SetSpan(FigureSpan span);
    double Middle() const;

    FigurePlot plot_;
    Figure figure_;
    std::optional<FigurePlace> pointed_;
    std::optional<QPointF> dragged_; ///< Where the button was pressed.
};

} // namespace zelvia
