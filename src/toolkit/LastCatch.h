// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QPointer>

#include <exception>
#include <vector>

namespace zelvia
{

/// Where everything ends that is thrown while the event loop works. It is reported under the bare title, by a call that
/// the event loop makes later: no box comes up within a paint or the like, where Qt can't bear one.
///
/// Qt's widgets are built without exceptions, so that one which passes through their functions skips what these would
/// clean up. The application catches as near to the receiver as it can, at the event, where they hold no more than the
/// event's own data; and a slot's handler runs under Fire, which lets nothing out.
///
/// What repeats without the user's doing, as a paint or a timer, is reported when it begins to fail and not again
/// before it has worked once; what fails while a report waits or is up, not at all.
class LastCatch
{
public:
    /// Takes the exception in flight, which an event of this type to `receiver` has thrown.
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
    bool queued_ = false; ///< Report is going to be called.
    bool reporting_ = false;
};

} // namespace zelvia
