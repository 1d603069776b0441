// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ActiveWindow.h"

#include "support/Hand.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace hand
{
namespace
{

/// What the X server answers, freed as its library asks for.
template <typename T>
using Reply = std::unique_ptr<T, decltype([](T* reply) { std::free(reply); })>;

xcb_connection_t* Server()
{
    return qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

/// A window that a property of the root window names, 0 where it names none.
WId RootProperty(xcb_connection_t* server, const char* name)
{
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(server, xcb_intern_atom(server, 1, length, name), nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    if (atom == nullptr) {
        return 0;
    }
    const Reply<xcb_get_property_reply_t> property(
        xcb_get_property_reply(server, xcb_get_property(server, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (property == nullptr || xcb_get_property_value_length(property.get()) < static_cast<int>(sizeof(xcb_window_t))) {
        return 0;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
}

/// The window that gets the keys.
WId FocusOfServer(xcb_connection_t* server)
{
    const Reply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    return focus != nullptr ? focus->focus : 0;
}

} // namespace

void AwaitAgreement()
{
    if (!OnX11()) {
        return;
    }
    constexpr int patience = 2000;
    // What has come in by now must not be taken for what the next press brings.
    QCoreApplication::processEvents();
    (void)QTest::qWaitFor(
        [] {
            const QWidget* active = QApplication::activeWindow();
            return active != nullptr && active->internalWinId() == ManagersActiveWindow() &&
                   active->internalWinId() == FocusOfServer(Server());
        },
        patience);
}

void AwaitFront(const QWidget& window)
{
    const auto front = [&window] {
        return window.isActiveWindow() && QGuiApplication::focusWindow() == window.windowHandle() &&
               (!OnX11() || ManagersActiveWindow() == window.winId());
    };
    constexpr int attempts = 4;
    for (int i = 0; i < attempts && !QTest::qWaitFor(front); ++i) {
        if (OnX11()) {
            Raw({QStringLiteral("windowactivate"), QString::number(window.winId())});
        }
    }
    const auto numberOf = [](QWindow* other) { return other != nullptr ? other->winId() : 0; };
    QVERIFY2(front(), qPrintable(QStringLiteral("window %1, with the keyboard %2, active for the manager %3")
                                     .arg(window.winId())
                                     .arg(numberOf(QGuiApplication::focusWindow()))
                                     .arg(OnX11() ? ManagersActiveWindow() : 0)));
}

WId ManagersActiveWindow()
{
    return RootProperty(Server(), "_NET_ACTIVE_WINDOW");
}

void AwaitManager(WId window)
{
    constexpr int patience = 20000;
    if (!QTest::qWaitFor([window] { return ManagersActiveWindow() == window; }, patience)) {
        QFAIL("the manager holds another window for the active one");
    }
}

} // namespace hand
