// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstddef>
#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace zelvia
{

class UpDown;

/// The keys of a group of spin controls of which one control holds the focus for all: Left and Right
/// choose the active spin, Up and Down step it, digits and Backspace set it.
class SpinKeys : public QObject
{
    Q_OBJECT

public:
    /// What the group asks of its owner; each may be empty.
    struct Actions {
        std::function<void()> leave = {};          ///< Escape.
        std::function<void()> next = {};           ///< Enter.
        std::function<void(int spin)> active = {}; ///< Another spin is the active one, -1 for none. Digits set only
                                                   ///< spins whose owner shows which one is active.
    };

    /// `spins` from left to right; `first` is the one that the keys start with.
    SpinKeys(QWidget& focus, std::vector<UpDown*> spins, const UpDown& first, Actions actions);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(const QKeyEvent& key);
    bool TypeDigit(const QKeyEvent& key);
    void Enter(Qt::FocusReason reason);
    void Choose(std::size_t index);
    void ChooseNone();

    std::vector<UpDown*> spins_;
    std::size_t first_ = 0;
    std::size_t chosen_ = 0;
    bool typing_ = false; ///< The last key was a digit, which the next one goes on with.
    Actions actions_;
};

} // namespace zelvia
