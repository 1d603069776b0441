// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Events.h"

#include "core/RunTimeError.h"
#include "toolkit/Application.h"
#include "toolkit/FocusController.h"

#include <utility>

namespace zelvia
{
namespace
{

int depth = 0;

/// The window that a box is shown over: the active one or, while the display has none because another box has just
/// closed, the one that holds the focus.
QWidget* BoxOwner()
{
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    const Control* focused = FocusController::Instance().Current();
    return focused != nullptr && focused->Widget().isVisible() ? focused->Widget().window() : nullptr;
}

} // namespace

Routine::Routine()
{
    ++depth;
}

Routine::~Routine()
{
    if (--depth > 0) {
        return;
    }
    try {
        FocusController::Instance().Schedule();
        if (const auto& ended = Application::Instance().RoutineEnded) {
            ended();
        }
    } catch (...) {
        // The next press, key or change of focus reports what is pending.
        Application::Instance().ReportLater();
    }
}

bool Routine::Running()
{
    return depth > 0;
}

RoutinePause::RoutinePause() : depth_(std::exchange(depth, 0)) {}

RoutinePause::~RoutinePause()
{
    depth = depth_;
}

BoxUp::BoxUp() : owner_(BoxOwner())
{
    FocusController::Instance().ShowDeferred();
}

BoxUp::~BoxUp()
{
    if (!owner_.isNull() && owner_->isVisible() && !owner_->isActiveWindow()) {
        owner_->activateWindow();
    }
}

void Fire(const std::function<void()>& handler)
{
    if (!handler) {
        return;
    }
    const Routine routine;
    try {
        Trap(kBareTitle, [&] {
            // A copy: the handler may replace or destroy what holds it.
            const std::function<void()> running = handler;
            running();
        });
    } catch (...) {
        // The report has failed too, as when memory is exhausted.
        Application::Instance().ReportLater();
    }
}

} // namespace zelvia
