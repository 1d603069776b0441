// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

namespace zelvia
{

/// The turn of a page: what a window showed before fades over what it shows now, which is there at once and takes
/// every key and press. Pages that are turned in quick succession don't fade.
class PageTurn
{
public:
    /// How long the turn of a page takes.
    static constexpr int kMilliseconds = 120;

    /// Whether anything moves. Off until the program asks for it; the desktop's settings may still forbid it.
    static void Allow(bool allowed);

    /// Lets the window's picture fade, before the window shows anything else.
    void Begin(QWidget& window);

private:
    QPointer<QWidget> leaf_;
    QElapsedTimer last_;
};

} // namespace zelvia
