// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QPointer>

#include <exception>
#include <vector>

namespace zelvia
{

/// The last catch for exceptions in the event loop. They are reported under the bare title by a queued call: no box
/// opens within a paint event or the like, where Qt does not allow one.
///
/// Qt's widgets are built without exceptions, so one that passes through their functions skips their clean-up. The
/// application catches as near to the receiver as it can, at the event, where they hold no more than the event's own
/// data; and a slot's handler runs under Fire, which lets no exception out.
///
/// A repeating event, such as a paint or a timer, is reported when it begins to fail and not again until
/// it has succeeded once; failures while a report is pending or shown are not reported.
class LastCatch
{
public:
    /// Takes the current exception, thrown by an event of this type to `receiver`.
    void Take(QObject* receiver, QEvent::Type type) noexcept;

    /// An event has been handled and threw nothing.
    void Passed(const QObject* receiver, QEvent::Type type) noexcept
    {
        if (!failing_.empty()) {
            Forget(receiver, type);
        }
        if (waiting_ != nullptr && !queued_) {
            Queue();
        }
    }

private:
    struct Failing {
        QPointer<QObject> receiver;
        QEvent::Type type;
    };

    bool IsNew(QObject* receiver, QEvent::Type type);
    void Forget(const QObject* receiver, QEvent::Type type) noexcept;
    void Queue() noexcept;
    void Report();

    std::vector<Failing> failing_;
    std::exception_ptr waiting_;
    bool queued_ = false; ///< Report is about to be called.
    bool reporting_ = false;
};

} // namespace zelvia
