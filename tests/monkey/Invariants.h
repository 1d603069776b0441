// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Actions.h"
#include "monkey/Boxes.h"
#include "monkey/Desk.h"
#include "monkey/FileWatch.h"

#include <QString>

#include <optional>
#include <vector>

namespace zelvia::monkey
{

/// What must hold whatever the monkey does.
class Invariants
{
public:
    Invariants(Desk& desk, Boxes& boxes);

    /// Before an action: takes down what it is to be compared with.
    void Begin();
    /// After an action, the program at rest. What is wrong, or nothing.
    QString Check(const Actions& actions, long number);

    /// A digest of what the program shows and holds, to compare two runs of the same seed.
    QByteArray Digest() const;

    const FileWatch& Files() const { return files_; }

private:
    /// What a page held before the action.
    struct Before {
        CalendarDate date;
        int slot = 0;
        RecordGiorno committed; ///< What a commit then would have written.
    };

    QString CheckAtRest() const;
    QString CheckMemory() const;
    QString CheckFiles();
    QString CheckDays(const Actions& actions, long number);
    QString CheckMove(const Actions& actions) const;
    QString CheckReplaced();
    QString CheckOtherDays();
    bool MayWrite(const QString& file) const;
    bool Replaced() const;

    Desk& desk_;
    Boxes& boxes_;
    FileWatch files_;
    std::optional<Before> before_;
    std::vector<RecordGiorno> days_; ///< As they were when last compared.
    std::vector<bool> worked_;       ///< Days that were on the page since.
    QString meanwhile_;              ///< What was found while a box was up.
};

} // namespace zelvia::monkey
