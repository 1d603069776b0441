// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Boxes.h"
#include "monkey/Desk.h"
#include "monkey/FileWatch.h"

#include <QString>

#include <functional>
#include <vector>

namespace zelvia::monkey
{

/// What must hold whatever the monkey does.
class Invariants
{
public:
    Invariants(Desk& desk, Boxes& boxes);

    /// After an action, the program at rest. What is wrong, or nothing.
    QString Check(long number);

    /// A digest of what the program shows and holds, to compare two runs of the same seed.
    QByteArray Digest() const;

    const FileWatch& Files() const { return files_; }

    /// The day on show may be worked on by what follows, before the keys of the same action turn it.
    void NoteDay();

private:
    QString CheckAtRest() const;
    QString CheckMemory() const;
    QString CheckFiles();
    QString CheckDays(long number);
    void WatchSteps(frmMain& page);
    void Step(frmMain& page, const std::function<void()>& step);
    QString CheckCommitted() const;
    QString CheckReplaced();
    QString CheckOtherDays();
    bool MayWrite(const QString& file) const;
    bool Replaced() const;

    Desk& desk_;
    Boxes& boxes_;
    FileWatch files_;
    std::vector<RecordGiorno> days_; ///< As they were when last compared.
    std::vector<bool> worked_;       ///< Days that were on the page since.
    QString meanwhile_;              ///< What was found in the midst of an action.
};

} // namespace zelvia::monkey
