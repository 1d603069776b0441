// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Button.h"

#include "toolkit/Events.h"
#include "toolkit/QtText.h"

#include <QKeyEvent>

namespace zelvia
{

Button::Button(QWidget* parent, const QString& name, TextView caption)
    : QPushButton(ToQString(caption), parent), Control(this)
{
    setObjectName(name);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Fire(Click); });
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

} // namespace zelvia
