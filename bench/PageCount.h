// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Control.h"

#include <QList>
#include <QWidget>

#include <algorithm>

namespace zelvia::bench
{

/// How many controls a window holds, hidden ones included.
inline int ControlsOf(const QWidget& window)
{
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    return static_cast<int>(std::count_if(widgets.begin(), widgets.end(),
                                          [](QWidget* widget) { return dynamic_cast<Control*>(widget) != nullptr; }));
}

} // namespace zelvia::bench
