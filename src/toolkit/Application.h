// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/InstanceLock.h"
#include "toolkit/LastCatch.h"

#include <QApplication>
#include <QCursor>

#include <functional>
#include <memory>

namespace zelvia
{

/// The application under the toolkit's rules: each event passes the focus controller first, and no exception gets past
/// the handling of an event; message boxes and the screen's pointer are Qt's, Qt's own texts are Italian.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    ~Application() override;

    static Application& Instance() { return *static_cast<Application*>(QCoreApplication::instance()); }

    /// Gives back the exit status for main to return, as the last thing of all. Under Wayland it ends the process there
    /// and then: while Qt 6.4 takes down its display, it may wait for a thread of its own without end, some three times
    /// in a thousand. What the caller still holds is not destroyed then, so what has to be tidied up must be gone
    /// before.
    static int End(int status);

    /// Takes the lock of the program's folder for the life of the application, releasing an earlier one. False when
    /// another run holds it, which is then asked for its window; a folder that can't be written counts as free.
    bool TakeInstanceLock();
    void ReleaseInstanceLock() { lock_.reset(); }

    /// Shows the program's window, for a run that has ended because this one holds the lock.
    std::function<void()> ShowAgain;

    /// What F1 does in a window that has no menu entry of its own for it; it is passed the window's name.
    std::function<void(const QString& window)> HelpKey;

    /// Runs after each routine of the program, when all that it changed is in its place.
    std::function<void()> RoutineEnded;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Takes the current exception, wherever it was thrown, and reports it after the current event.
    void ReportLater() noexcept { lastCatch_.Take(nullptr, QEvent::None); }

private:
    std::unique_ptr<InstanceLock> lock_;
    LastCatch lastCatch_;
};

/// Reads a Windows cursor file with its hot spot. Raises error 53 or the like when it can't be opened, 481 when it
/// holds no picture.
QCursor LoadCursor(TextView path);

} // namespace zelvia
