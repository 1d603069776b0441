// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Accessible.h"

#include "toolkit/Picture.h"

#include <QAccessible>
#include <QLineEdit>
#include <QToolButton>

namespace zelvia
{

void AddClearButton(QLineEdit& box)
{
    box.setClearButtonEnabled(true);
    box.findChild<QToolButton*>()->setAccessibleName(QStringLiteral("Svuota"));
}

void TellValue(QWidget& widget, int value)
{
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(&widget, value);
        QAccessible::updateAccessibility(&event);
    }
}

void TellText(QWidget& widget)
{
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void TellTitle(QWidget& window)
{
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent event(&window, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    for (Picture* place : window.findChildren<Picture*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (place->objectName().isEmpty()) {
            QAccessibleEvent same(place, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&same);
        }
    }
}

void TellActive(QWidget& widget)
{
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void TellSwitched(QWidget& widget)
{
    if (QAccessible::isActive()) {
        QAccessible::State changed;
        changed.checked = changed.pressed = true;
        QAccessibleStateChangeEvent event(&widget, changed);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace zelvia
