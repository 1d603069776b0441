// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Menu.h"

#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/QtText.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia
{

void FillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, MenuKind kind)
{
    menu.setAccessibleName(menu.title().remove(QLatin1Char('&')));
    for (const MenuEntry& entry : entries) {
        QAction* action = entry.caption.empty() ? menu.addSeparator() : menu.addAction(ToQString(entry.caption));
        action->setObjectName(ToQString(entry.name));
        action->setShortcut(entry.shortcut);
        QObject::connect(action, &QAction::triggered, &menu, [click = entry.click, before = entry.before, kind] {
            if (kind == MenuKind::Bar) {
                FocusController::Instance().LeaveField();
            }
            if (before) {
                before();
            }
            Fire(click);
        });
    }
}

void OpenPopUp(QMenu& menu, const QPoint& globalPosition)
{
    const RoutinePause pause;
    menu.exec(globalPosition);
}

QMenu& AddMenu(QMenuBar& bar, const char* name, TextView caption, const std::vector<MenuEntry>& entries)
{
    QMenu* menu = bar.addMenu(ToQString(caption));
    menu->setObjectName(QLatin1String(name));
    FillMenu(*menu, entries, MenuKind::Bar);
    return *menu;
}

} // namespace zelvia
