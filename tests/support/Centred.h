// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/WindowPlaces.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace zelvia::test
{

/// How far a window is from the middle of another one; of a window for which the screen is too small there, from the
/// place nearest to it.
inline int OffCentre(const QWidget& window, const QWidget& over)
{
    const QRect screen = WindowPlaces::Instance().ScreenOf(over);
    const QPoint place = window.windowHandle()->framePosition();
    QRect frame = window.windowHandle()->frameGeometry();
    frame.moveCenter(over.windowHandle()->frameGeometry().center());
    const QPoint centred(std::max(screen.left(), std::min(frame.left(), screen.right() + 1 - frame.width())),
                         std::max(screen.top(), std::min(frame.top(), screen.bottom() + 1 - frame.height())));
    return (place - centred).manhattanLength();
}

/// The place of what is in the window's frame.
inline QPoint PlaceOf(const QWidget& window)
{
    return window.geometry().topLeft();
}

/// Moves a window by `way`; returns the place that it has then.
inline QPoint MoveBy(QWidget& window, const QPoint& way)
{
    const QPoint place = PlaceOf(window) + way;
    window.setGeometry({place, window.size()});
    return place;
}

} // namespace zelvia::test
