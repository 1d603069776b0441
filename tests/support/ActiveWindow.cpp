// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ActiveWindow.h"

#include "support/Hand.h"
#include "support/XServer.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QThread>
#include <QWindow>

#include <cstdint>
#include <cstring>

namespace hand
{
namespace
{

/// A window that a property of the root window names, 0 where it names none.
WId RootProperty(const char* name)
{
    xcb_connection_t* server = Server();
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(server, xcb_intern_atom(server, 1, length, name), nullptr));
    if (atom == nullptr) {
        return 0;
    }
    const Reply<xcb_get_property_reply_t> property(xcb_get_property_reply(
        server, xcb_get_property(server, 0, RootWindow(), atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (property == nullptr || xcb_get_property_value_length(property.get()) < static_cast<int>(sizeof(xcb_window_t))) {
        return 0;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
}

/// The window that gets the keys.
WId FocusOfServer()
{
    const Reply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(Server(), xcb_get_input_focus(Server()), nullptr));
    return focus != nullptr ? focus->focus : 0;
}

} // namespace

bool Await(const std::function<bool()>& condition, int milliseconds)
{
    constexpr unsigned long step = 1;
    const QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!condition()) {
            QThread::msleep(step);
        }
    }
    return true;
}

void AwaitKeyboard()
{
    constexpr int patience = 5000;
    (void)Await([] { return QGuiApplication::focusWindow() != nullptr; }, patience);
}

void AwaitAgreement()
{
    if (!OnX11()) {
        AwaitKeyboard();
        return;
    }
    constexpr int patience = 2000;
    // What has come in by now must not be taken for what the next press brings.
    QCoreApplication::processEvents();
    (void)Await(
        [] {
            const QWidget* active = QApplication::activeWindow();
            return active != nullptr && active->internalWinId() == ManagersActiveWindow() &&
                   active->internalWinId() == FocusOfServer();
        },
        patience);
}

void AwaitFront(const QWidget& window)
{
    const auto front = [&window] {
        return window.isActiveWindow() && QGuiApplication::focusWindow() == window.windowHandle() &&
               (!OnX11() || ManagersActiveWindow() == window.winId());
    };
    constexpr int attempts = 10;
    constexpr int patience = 2000;
    bool there = false;
    for (int i = 0; i < attempts && !there; ++i) {
        there = Await(front, patience);
        if (!there && OnX11()) {
            Raw({QStringLiteral("windowactivate"), QString::number(window.winId())});
        } else if (!there && window.windowHandle() != nullptr) {
            window.windowHandle()->requestActivate();
        }
    }
    const auto numberOf = [](QWindow* other) { return other != nullptr ? other->winId() : 0; };
    QVERIFY2(there, qPrintable(QStringLiteral("window %1, with the keyboard %2, active for the manager %3")
                                   .arg(window.winId())
                                   .arg(numberOf(QGuiApplication::focusWindow()))
                                   .arg(OnX11() ? ManagersActiveWindow() : 0)));
}

WId ManagersActiveWindow()
{
    return RootProperty("_NET_ACTIVE_WINDOW");
}

void AwaitManager(WId window)
{
    constexpr int patience = 20000;
    if (!QTest::qWaitFor([window] { return ManagersActiveWindow() == window; }, patience)) {
        QFAIL("the manager holds another window for the active one");
    }
}

} // namespace hand
