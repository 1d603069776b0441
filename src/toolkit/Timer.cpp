// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Timer.h"

#include "toolkit/Events.h"
#include "toolkit/FocusController.h"

#include <QGuiApplication>

namespace zelvia
{

Timer::Timer(QObject* parent, const QString& name, int milliseconds) : QObject(parent)
{
    setObjectName(name);
    timer_.setInterval(milliseconds);
    connect(&timer_, &QTimer::timeout, this, [this] {
        FocusController::Instance().Flush();
        if (!Routine::Running() && QGuiApplication::modalWindow() == nullptr) {
            Fire(Tick);
        }
    });
    timer_.start();
}

} // namespace zelvia
