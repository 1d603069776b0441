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

/// A kernel lock on a file, by which one run of the program detects another. It ends with the process, however that
/// ends. The file's content does not matter; it is created when absent and never deleted.
class InstanceLock
{
public:
    explicit InstanceLock(const QString& path);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock. False when another run holds it; where no file can be created or locked it counts as free.
    bool Take();

    /// From now on the event loop runs `asked` whenever another run calls Ask.
    void Answer(std::function<void()> asked);

    /// Asks the run that holds the lock for its window. False when none answers, such as one that has just started.
    bool Ask() const;

private:
    Descriptor file_;
    std::unique_ptr<Descriptor> socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace zelvia
