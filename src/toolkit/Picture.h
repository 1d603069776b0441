// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Control.h"

#include <QWidget>

#include <functional>

class QPainter;

namespace zelvia
{

/// A drawing on the page, in vectors. It takes the focus by program only.
class Picture : public QWidget, public Control
{
    Q_OBJECT

public:
    using Drawing = std::function<void(QPainter&, const QRectF&)>;

    Picture(QWidget* parent, const QString& name, Drawing drawing = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing drawing_;
};

} // namespace zelvia
