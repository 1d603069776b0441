// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QAction>
#include <QKeySequence>

#include <functional>
#include <span>
#include <vector>

class QMenu;
class QMenuBar;

namespace zelvia
{

/// An entry of a menu; one without a caption is a separator.
struct MenuEntry {
    Text name;
    TextView caption;
    std::function<void()> click;
    QKeySequence shortcut = {};
    std::function<void()> before = {}; ///< Runs before the click, as long as no routine runs.
};

enum class MenuKind {
    Bar,  ///< A command first closes the field that is open.
    PopUp ///< A command leaves everything open, unless its `before` says otherwise.
};

/// Fills `menu` with the entries in their order. An entry without a handler is there and does nothing.
void FillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, MenuKind kind);

/// Opens a pop-up for the routine that runs, and waits until it has closed and its entry, if one was chosen, is done.
void OpenPopUp(QMenu& menu, const QPoint& globalPosition);

/// Adds a menu of that name and caption to the bar.
QMenu& AddMenu(QMenuBar& bar, const char* name, TextView caption, const std::vector<MenuEntry>& entries);

} // namespace zelvia
