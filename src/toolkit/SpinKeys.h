// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstddef>
#include <functional>
#include <vector>

class QWidget;

namespace zelvia
{

class UpDown;

/// The keys of a group of spin controls of which one control holds the focus for all: Left and Right choose a pair of
/// arrows, Up and Down step it once, Page Up and Page Down ten times, Escape leaves the group.
class SpinKeys : public QObject
{
    Q_OBJECT

public:
    /// `spins` from left to right; `first` is the one that the keys start with.
    SpinKeys(QWidget& focus, std::vector<UpDown*> spins, const UpDown& first, std::function<void()> leave);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(int key);
    void Choose(std::size_t index);
    void MarkNone();

    std::vector<UpDown*> spins_;
    std::size_t first_ = 0;
    std::size_t chosen_ = 0;
    std::function<void()> leave_;
};

} // namespace zelvia
