// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Control.h"
#include "toolkit/Pixels.h"

#include <QPainter>
#include <QWidget>

#include <functional>
#include <utility>

namespace zelvia
{

/// A drawing on the page, in vectors. It takes the focus by program only.
class Picture : public QWidget, public Control
{
    Q_OBJECT

public:
    using Drawing = std::function<void(QPainter&, const QRectF&)>;

    Picture(QWidget* parent, const QString& name, Drawing drawing = {})
        : QWidget(parent), Control(this), drawing_(std::move(drawing))
    {
        setObjectName(name);
        setFocusPolicy(Qt::NoFocus);
    }

    /// How many times larger than designed it is shown: it is drawn in units of the design.
    void SetFactor(double factor) { factor_ = factor; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (drawing_) {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(factor_, factor_);
            const QRectF area = Pixels(painter).Around(QRectF(QPointF(), QSizeF(size()) / factor_));
            drawing_(painter, area);
        }
    }

private:
    Drawing drawing_;
    double factor_ = 1;
};

} // namespace zelvia
