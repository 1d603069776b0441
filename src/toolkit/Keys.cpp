// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Keys.h"

#include "toolkit/Events.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace zelvia
{

int ControlKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return kEnter;
    case Qt::Key_Escape: return kEscape;
    case Qt::Key_Backspace: return kBackspace;
    default: return 0;
    }
}

QKeyCombination Chord(const QKeyEvent& key)
{
    return QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key()));
}

bool FireListKey(const QKeyEvent& event, const std::function<void(int keyAscii)>& handler)
{
    const int keyAscii = ControlKey(event.key());
    if (keyAscii != kEnter && keyAscii != kEscape) {
        return false;
    }
    Fire([&] {
        if (handler) {
            handler(keyAscii);
        }
    });
    return true;
}

void FrameFirstRow(QAbstractItemView& list)
{
    if (list.hasFocus() && !list.currentIndex().isValid()) {
        list.selectionModel()->setCurrentIndex(list.model()->index(0, 0), QItemSelectionModel::NoUpdate);
    }
}

void ThrowAwayNonDigit(int& keyAscii)
{
    if (keyAscii >= ' ' && (keyAscii < '0' || keyAscii > '9')) {
        keyAscii = 0;
    }
}

} // namespace zelvia
