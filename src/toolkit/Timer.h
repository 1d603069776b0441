// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace zelvia
{

/// Ticks between events: never while a routine runs or a box is up.
class Timer : public QObject
{
    Q_OBJECT

public:
    Timer(QObject* parent, const QString& name, int milliseconds);

    std::function<void()> Tick;
    int Interval() const { return timer_.interval(); }

private:
    QTimer timer_;
};

} // namespace zelvia
