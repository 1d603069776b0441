// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// The X server that this program is connected to.
namespace hand
{

/// What the server answers, freed as its library asks for.
template <typename T>
using Reply = std::unique_ptr<T, decltype([](T* reply) { std::free(reply); })>;

inline xcb_connection_t* Server()
{
    return qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

inline xcb_window_t RootWindow()
{
    return xcb_setup_roots_iterator(xcb_get_setup(Server())).data->root;
}

} // namespace hand
