// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/Measure.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <cstdlib>
#include <iostream>
#include <utility>

namespace zelvia::bench
{

/// Records that a widget was painted. A window comes first in the pass that paints it and its contents, and the event
/// loop never leaves a pass unfinished.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    /// Watches for the windows of that name, including one not created yet.
    explicit PaintWatch(QString window) : window_(std::move(window)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted_ = painted_ || (event->type() == QEvent::Paint && Means(*watched));
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

    /// Forgets what was painted so far.
    void Forget() { painted_ = false; }

private:
    bool Means(const QObject& watched) const { return window_.isEmpty() || watched.objectName() == window_; }

    QString window_;
    bool painted_ = false;
};

/// A press and release of the left button on a place of the widget.
inline void Click(QWidget& widget, const QPointF& place)
{
    const QPointF screen = widget.mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, screen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, screen, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &release);
}

} // namespace zelvia::bench
