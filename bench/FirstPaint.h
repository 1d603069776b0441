// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

namespace zelvia::bench
{

/// Ends the program once a window has been painted for the first time, and prints the time on the steady clock, which
/// all processes share, in nanoseconds, the memory in kilobytes, then the number of controls given and the window's
/// width and height.
class FirstPaint : public QObject
{
public:
    FirstPaint(QWidget& window, int controls) : window_(window), controls_(controls)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            // The window comes first in the pass that paints it and its contents; queued calls run after that.
            window_.removeEventFilter(this);
            QMetaObject::invokeMethod(
                this, [this] { Report(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void Report()
    {
        using std::chrono::nanoseconds;
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%lld %ld %d %d %d\n", static_cast<long long>(std::chrono::duration_cast<nanoseconds>(now).count()),
                    ProportionalMemory(), controls_, window_.width(), window_.height());
        QCoreApplication::quit();
    }

    /// The memory of this process in kilobytes, what it shares with others divided among them.
    static long ProportionalMemory()
    {
        std::ifstream map("/proc/self/smaps_rollup");
        std::string word;
        while (map >> word && word != "Pss:") {
        }
        long kilobytes = 0;
        map >> kilobytes;
        return kilobytes;
    }

    QWidget& window_;
    int controls_;
};

} // namespace zelvia::bench
