// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Button.h"

#include "toolkit/Accessible.h"
#include "toolkit/Events.h"
#include "toolkit/Fonts.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QKeyEvent>

#include <utility>

namespace zelvia
{

Button::Button(QWidget* parent, const QString& name, TextView caption)
    : QPushButton(ToQString(caption), parent), Control(this)
{
    setObjectName(name);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Fire(Click); });
}

void Button::SetSwitched(bool on)
{
    if (std::exchange(switched_, on) != on) {
        TellSwitched(*this);
    }
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (ControlKey(event->key()) == kEnter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

Button* MakeButton(QWidget* parent, const char* name, TextView caption, const QRect& place, std::function<void()> click)
{
    constexpr int pixels = 15;
    auto* button = new Button(parent, QLatin1String(name), caption);
    button->setGeometry(place);
    button->setFont(PrintFont(pixels));
    button->Click = std::move(click);
    return button;
}

} // namespace zelvia
