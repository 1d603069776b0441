// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Label.h"

#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace zelvia
{

Label::Label(QWidget* parent, const QString& name) : QLabel(parent), Control(this)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
}

void Label::SetCaption(TextView caption)
{
    // QLabel lays out the text of a focusable label in a document of its own, which plain text does not need.
    const Qt::FocusPolicy reach = focusPolicy();
    setFocusPolicy(Qt::NoFocus);
    setText(ToQString(caption));
    setFocusPolicy(reach);
}

void Label::OnClick(std::function<void()> click, KeyReach reach)
{
    click_ = std::move(click);
    setFocusPolicy(reach == KeyReach::Reachable ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_Hover, reach == KeyReach::Reachable);
}

void Label::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(pressed_, false) &&
        rect().contains(event->position().toPoint())) {
        Fire(click_);
    }
    Fire([&] {
        if (MouseUp) {
            MouseUp(event->button(), event->globalPosition().toPoint());
        }
    });
    event->accept();
}

void Label::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (click_ && (ControlKey(key) == kEnter || key == Qt::Key_Space)) {
        Fire(click_);
        return;
    }
    QLabel::keyPressEvent(event);
}

void Label::paintEvent(QPaintEvent* event)
{
    if (click_ && (hasFocus() || (testAttribute(Qt::WA_Hover) && underMouse()))) {
        QPainter painter(this);
        QColor tint = palette().color(QPalette::Highlight);
        tint.setAlpha(hasFocus() ? 60 : 28);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint);
        painter.drawRoundedRect(rect(), 3, 3);
    }
    QLabel::paintEvent(event);
}

} // namespace zelvia
