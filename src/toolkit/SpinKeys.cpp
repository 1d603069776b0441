// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/SpinKeys.h"

#include "toolkit/Accessible.h"
#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "toolkit/UpDown.h"

#include <QKeyEvent>

#include <algorithm>

namespace zelvia
{

SpinKeys::SpinKeys(QWidget& focus, std::vector<UpDown*> spins, const UpDown& first, Actions actions)
    : spins_(std::move(spins)),
      first_(static_cast<std::size_t>(std::find(spins_.begin(), spins_.end(), &first) - spins_.begin())),
      actions_(std::move(actions))
{
    for (UpDown* spin : spins_) {
        spin->SetMarked(false);
    }
    focus.installEventFilter(this);
}

void SpinKeys::ChooseNone()
{
    spins_[chosen_]->SetMarked(false);
    if (actions_.active) {
        actions_.active(-1);
    }
}

void SpinKeys::Choose(std::size_t index)
{
    spins_[chosen_]->SetMarked(false);
    chosen_ = index;
    typing_ = false;
    spins_[chosen_]->SetMarked(true);
    if (actions_.active) {
        actions_.active(static_cast<int>(chosen_));
    }
}

/// The group goes on with its part when a window or a menu gives the focus back.
void SpinKeys::Enter(Qt::FocusReason reason)
{
    const bool back =
        reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    Choose(back ? chosen_ : first_);
    // Of the control that holds the focus for all Qt tells behind this, and a reader is to end at the active part.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (spins_[chosen_]->Marked() && !spins_[chosen_]->hasFocus()) {
                TellActive(*spins_[chosen_]);
            }
        },
        Qt::QueuedConnection);
}

/// A digit goes on with the number being typed, and one that would take it beyond the limit starts anew; Backspace
/// takes the last one away.
bool SpinKeys::TypeDigit(const QKeyEvent& key)
{
    constexpr int ten = 10;
    UpDown& spin = *spins_[chosen_];
    const int typed = typing_ ? spin.Value().value() : 0;
    int value = typed / ten;
    if (key.key() == Qt::Key_Backspace) {
        if (!typing_) {
            return true;
        }
    } else {
        const QString text = key.text();
        if (text.size() != 1 || text[0] < u'0' || text[0] > u'9') {
            return false;
        }
        const int digit = text[0].digitValue();
        value = ten * typed + digit <= spin.Maximum() ? ten * typed + digit : digit;
    }
    typing_ = value >= spin.Minimum();
    if (typing_) {
        spin.SetValue(value);
    }
    return true;
}

bool SpinKeys::HandleKey(const QKeyEvent& key)
{
    if ((key.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier)) != 0) {
        return false;
    }
    if (actions_.active && TypeDigit(key)) {
        return true;
    }
    UpDown& spin = *spins_[chosen_];
    switch (ControlKey(key.key())) {
    case kEscape: Fire(actions_.leave); return true;
    case kEnter: Fire(actions_.next); return static_cast<bool>(actions_.next);
    default: break;
    }
    typing_ = false;
    switch (key.key()) {
    case Qt::Key_Left: Choose(chosen_ > 0 ? chosen_ - 1 : 0); return true;
    case Qt::Key_Right: Choose(std::min(chosen_ + 1, spins_.size() - 1)); return true;
    case Qt::Key_Up: spin.StepUp(1); return true;
    case Qt::Key_Down: spin.StepDown(1); return true;
    default: return false;
    }
}

bool SpinKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: Enter(static_cast<QFocusEvent*>(event)->reason()); break;
    case QEvent::FocusOut: ChooseNone(); break;
    case QEvent::KeyPress:
        if (HandleKey(*static_cast<QKeyEvent*>(event))) {
            return true;
        }
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zelvia
