// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Descriptor.h"

#include <QString>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace zelvia
{

/// The kernel's lock on a file, by which one run of the program knows of another. It goes with the process, however
/// that ends. What the file holds does not matter; it is made when it is absent and never deleted.
class InstanceLock
{
public:
    explicit InstanceLock(const QString& path);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock. False when another run holds it; where no file can be made or locked it counts as free.
    bool Take();

    /// Has the event loop run `asked` whenever another run calls Ask, from now on.
    void Answer(std::function<void()> asked);

    /// Asks the run that holds the lock for its window. False when none answers, as one that has just begun.
    bool Ask() const;

private:
    Descriptor file_;
    std::unique_ptr<Descriptor> socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace zelvia
