// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Colours.h"

#include <QLabel>
#include <QPalette>

namespace zelvia
{
namespace
{

bool IsLabel(const QWidget& control)
{
    return qobject_cast<const QLabel*>(&control) != nullptr;
}

void SetRole(QWidget& control, QPalette::ColorRole role, const QColor& colour)
{
    QPalette palette = control.palette();
    if (palette.color(role) != colour) {
        palette.setColor(role, colour);
        control.setPalette(palette);
    }
}

} // namespace

void SetBackColour(QWidget& control, const QColor& colour)
{
    if (IsLabel(control)) {
        control.setAutoFillBackground(true);
    }
    SetRole(control, IsLabel(control) ? QPalette::Window : QPalette::Base, colour);
}

void SetForeColour(QWidget& control, const QColor& colour)
{
    SetRole(control, IsLabel(control) ? QPalette::WindowText : QPalette::Text, colour);
}

QColor BackColour(const QWidget& control)
{
    return control.palette().color(IsLabel(control) ? QPalette::Window : QPalette::Base);
}

} // namespace zelvia
