// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/Measure.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QObject>
#include <QWidget>

#include <cstdlib>
#include <iostream>

namespace zelvia::bench
{

/// Notes that a widget was painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

    /// Runs the events until the paint that is due has reached the screen; ends the program when it never does.
    void Wait()
    {
        const auto start = Clock::now();
        while (!painted_) {
            QCoreApplication::processEvents();
            if (Clock::now() - start > std::chrono::seconds(20)) {
                std::cerr << "a window is not painted\n";
                std::exit(1);
            }
        }
        QGuiApplication::sync();
        painted_ = false;
    }

private:
    bool painted_ = false;
};

inline void Click(QWidget& widget, const QPointF& place)
{
    const QPointF screen = widget.mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, screen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, screen, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &release);
}

} // namespace zelvia::bench
