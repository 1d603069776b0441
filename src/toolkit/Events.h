// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace zelvia
{

/// Alive while a routine of the program runs. No change of focus is reported and no timer ticks meanwhile, not even in
/// the event loops of boxes and dialogs.
class Routine
{
public:
    Routine();
    ~Routine();
    Routine(const Routine&) = delete;
    Routine& operator=(const Routine&) = delete;

    static bool Running();
};

/// Alive while a pop-up menu waits for the user. The routine that opened it counts as ended meanwhile, so that an entry
/// finds what an entry of the menu bar finds.
class RoutinePause
{
public:
    RoutinePause();
    ~RoutinePause();
    RoutinePause(const RoutinePause&) = delete;
    RoutinePause& operator=(const RoutinePause&) = delete;

private:
    int depth_;
};

/// Alive while a message box or a dialog of the program's own is up. Controls hidden by a change of focus in progress
/// disappear from the screen first, and afterwards the window that was active is active again.
class BoxUp
{
public:
    BoxUp();
    ~BoxUp();
    BoxUp(const BoxUp&) = delete;
    BoxUp& operator=(const BoxUp&) = delete;

    /// The window that the box belongs to, or null.
    QWidget* Owner() const { return owner_; }

private:
    Routine routine_;
    QPointer<QWidget> owner_;
};

/// Runs the handler of an event, if there is one. An error that no trap has caught is reported under the bare title; no
/// exception leaves this function.
void Fire(const std::function<void()>& handler);

} // namespace zelvia
