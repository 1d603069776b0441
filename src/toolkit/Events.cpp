// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Events.h"

#include "core/RunTimeError.h"
#include "toolkit/FocusController.h"

#include <QApplication>

namespace zelvia
{
namespace
{

int depth = 0;

} // namespace

Routine::Routine()
{
    ++depth;
}

Routine::~Routine()
{
    if (--depth == 0) {
        FocusController::Instance().Schedule();
    }
}

bool Routine::Running()
{
    return depth > 0;
}

BoxUp::BoxUp() : owner_(QApplication::activeWindow())
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
    // A copy: the handler may replace or destroy what holds it.
    const std::function<void()> running = handler;
    const Routine routine;
    Trap(kBareTitle, running);
}

} // namespace zelvia
