// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/LastCatch.h"

#include "toolkit/Events.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

/// True for events that arrive once per action of the user or the program.
bool ComesSingly(QEvent::Type type)
{
    switch (type) {
    case QEvent::None:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Shortcut:
    case QEvent::Close:
    case QEvent::MetaCall: return true;
    default: return false;
    }
}

} // namespace

void LastCatch::Take(QObject* receiver, QEvent::Type type) noexcept
{
    bool report = true;
    try {
        report = ComesSingly(type) || IsNew(receiver, type);
    } catch (...) {
        // Out of memory to record it: it may be reported twice.
    }
    if (report && waiting_ == nullptr && !reporting_) {
        waiting_ = std::current_exception();
        Queue();
    }
}

bool LastCatch::IsNew(QObject* receiver, QEvent::Type type)
{
    std::erase_if(failing_, [](const Failing& failing) { return failing.receiver.isNull(); });
    const bool known = std::any_of(failing_.begin(), failing_.end(), [&](const Failing& failing) {
        return failing.receiver == receiver && failing.type == type;
    });
    if (!known) {
        failing_.push_back({receiver, type});
    }
    return !known;
}

/// The receiver may be gone by now; only its address is compared.
void LastCatch::Forget(const QObject* receiver, QEvent::Type type) noexcept
{
    std::erase_if(failing_,
                  [&](const Failing& failing) { return failing.receiver.data() == receiver && failing.type == type; });
}

void LastCatch::Queue() noexcept
{
    try {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [this] { Report(); }, Qt::QueuedConnection);
        queued_ = true;
    } catch (...) {
        // The next event tries again.
    }
}

void LastCatch::Report()
{
    queued_ = false;
    const std::exception_ptr thrown = std::exchange(waiting_, nullptr);
    reporting_ = true;
    Fire([&] { std::rethrow_exception(thrown); });
    reporting_ = false;
}

} // namespace zelvia
