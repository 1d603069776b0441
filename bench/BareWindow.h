// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QSize>
#include <QWidget>

namespace zelvia::bench
{

/// Makes `window` the baseline of the page: a window of its size that holds as many labels as the page has controls.
inline void FillBareWindow(QWidget& window, int labels, QSize size)
{
    constexpr int columns = 8;
    const int width = size.width() / columns;
    const int height = size.height() / ((labels + columns - 1) / columns);
    window.setFixedSize(size);
    for (int i = 0; i < labels; ++i) {
        auto* label = new QLabel(QStringLiteral("Etichetta %1").arg(i), &window);
        label->setGeometry(i % columns * width, i / columns * height, width, height);
    }
}

} // namespace zelvia::bench
