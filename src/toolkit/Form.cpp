// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Form.h"

#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Picture.h"
#include "toolkit/ScreenFit.h"
#include "toolkit/WindowPlaces.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include <utility>

namespace zelvia
{

Form::Form(const QString& name, QWidget* owner) : QWidget(owner, Qt::Window), sink_(new Picture(this, QString()))
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose, false);
    sink_->Widget().setGeometry(0, 0, 1, 1);
}

Form::~Form() = default;

Control& Form::FocusSink()
{
    return *sink_;
}

void Form::LayOnPaper(const QSize& size)
{
    setPalette(PagePalette());
    setAutoFillBackground(true);
    setFixedSize(size);
}

void Form::ShowInFront()
{
    WindowPlaces::Instance().ShowInFront(*this);
}

Form* Form::Of(QWidget* widget)
{
    return widget == nullptr ? nullptr : qobject_cast<Form*>(widget->window());
}

void Form::RunUnblocked(std::function<void()> action)
{
    if (blocked_) {
        waiting_.push_back(std::move(action));
    } else {
        action();
    }
}

void Form::NoteBlocking(QEvent::Type type)
{
    if (type == QEvent::WindowBlocked) {
        blocked_ = true;
    } else if (type == QEvent::WindowUnblocked) {
        blocked_ = false;
        for (const std::function<void()>& action : std::exchange(waiting_, {})) {
            action();
        }
    }
}

/// A key arrives here when no control of the window has handled it.
bool Form::event(QEvent* event)
{
    NoteBlocking(event->type());
    if (event->type() == QEvent::Polish) {
        FitToScreen(*this, sink_->Widget());
    }
    if (event->type() == QEvent::KeyPress && TakeKey(static_cast<const QKeyEvent&>(*event))) {
        return true;
    }
    return QWidget::event(event);
}

bool Form::TakeKey(const QKeyEvent& key)
{
    const auto& helpKey = Application::Instance().HelpKey;
    if (helpKey && key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier) {
        Fire([&] { helpKey(objectName()); });
        return true;
    }
    if (key.key() == Qt::Key_W && key.modifiers() == Qt::ControlModifier && !WindowPlaces::Instance().IsMain(*this)) {
        close();
        return true;
    }
    return false;
}

void Form::showEvent(QShowEvent* event)
{
    if (focusWidget() == nullptr) {
        FocusSink().Widget().setFocus(Qt::OtherFocusReason);
        FocusSink().OnFocusGiven();
    }
    QWidget::showEvent(event);
}

void Form::closeEvent(QCloseEvent* event)
{
    bool refused = false;
    Fire([&] { refused = QueryUnload(); });
    if (refused) {
        event->ignore();
        return;
    }
    if (!unloaded_) {
        unloaded_ = true;
        Fire([this] { OnUnload(); });
        deleteLater();
    }
    event->accept();
}

} // namespace zelvia
