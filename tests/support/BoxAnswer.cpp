// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BoxAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QWindow>

#include <chrono>

BoxAnswer::BoxAnswer(QMessageBox::StandardButton button, Look look) : button_(button), look_(std::move(look))
{
    using namespace std::chrono_literals;
    connect(&timer_, &QTimer::timeout, this, &BoxAnswer::Answer);
    timer_.start(5ms);
}

void BoxAnswer::Answer()
{
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    // One that another application keeps from the foreground is answered as well.
    if (answering_ || box.isNull() || !box->isVisible() || !box->windowHandle()->isExposed()) {
        return;
    }
    answering_ = true;
    texts_ << box->text();
    if (look_) {
        look_(*box);
    }
    if (!box.isNull() && box->isVisible()) {
        QAbstractButton* pressed = box->button(button_);
        if (pressed == nullptr) {
            pressed = box->buttons().constFirst();
        }
        pressed->click();
    }
    answering_ = false;
}
