// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/SpinKeys.h"

#include "toolkit/Events.h"
#include "toolkit/UpDown.h"

#include <QKeyEvent>

#include <algorithm>

namespace zelvia
{

SpinKeys::SpinKeys(QWidget& focus, std::vector<UpDown*> spins, const UpDown& first, std::function<void()> leave)
    : QObject(&focus), spins_(std::move(spins)), leave_(std::move(leave))
{
    first_ = static_cast<std::size_t>(std::find(spins_.begin(), spins_.end(), &first) - spins_.begin());
    MarkNone();
    focus.installEventFilter(this);
}

void SpinKeys::MarkNone()
{
    for (UpDown* spin : spins_) {
        spin->SetMarked(false);
    }
}

void SpinKeys::Choose(std::size_t index)
{
    MarkNone();
    chosen_ = index;
    spins_[chosen_]->SetMarked(true);
}

bool SpinKeys::HandleKey(int key)
{
    constexpr int page = 10;
    UpDown& spin = *spins_[chosen_];
    switch (key) {
    case Qt::Key_Left: Choose(chosen_ > 0 ? chosen_ - 1 : 0); return true;
    case Qt::Key_Right: Choose(std::min(chosen_ + 1, spins_.size() - 1)); return true;
    case Qt::Key_Up: spin.StepUp(1); return true;
    case Qt::Key_Down: spin.StepDown(1); return true;
    case Qt::Key_PageUp: spin.StepUp(page); return true;
    case Qt::Key_PageDown: spin.StepDown(page); return true;
    case Qt::Key_Escape: Fire(leave_); return true;
    default: return false;
    }
}

bool SpinKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: Choose(first_); break;
    case QEvent::FocusOut: MarkNone(); break;
    case QEvent::KeyPress:
        if (HandleKey(static_cast<QKeyEvent*>(event)->key())) {
            return true;
        }
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zelvia
