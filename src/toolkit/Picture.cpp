// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Picture.h"

#include <QPainter>

namespace zelvia
{

Picture::Picture(QWidget* parent, const QString& name, Drawing drawing)
    : QWidget(parent), Control(this), drawing_(std::move(drawing))
{
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
}

void Picture::paintEvent(QPaintEvent* /*event*/)
{
    if (drawing_) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing_(painter, rect());
    }
}

} // namespace zelvia
