// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Descriptor.h"
#include "tools/start/BeforeStart.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <memory>

namespace zelvia::test
{

/// The sample diary about to be started, with someone who presses buttons by their names. An empty name closes the box.
class StartDesk : public ToolsDesk
{
public:
    /// A start with these answers; what else is asked gets none.
    void Open(const QStringList& answers = {});
    /// The copy after its end.
    void End();

    /// Locks the folder as the program or the tools do, until it goes; none when that can't be.
    std::unique_ptr<Descriptor> Lock() const;

    /// What the last start said: "text" for what needs no answer, "text|button|button" for a question, "tools" when
    /// their window was opened.
    QStringList said;
    bool opens = false;
    /// Runs while a question is up.
    std::function<void()> meanwhile;

private:
    Start Prepared();

    std::deque<QString> answers_;
};

} // namespace zelvia::test
