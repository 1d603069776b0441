// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace zelvia::monkey
{

/// The last actions of a run, kept where they can be shown even when the program has crashed or hangs: then
/// they go to the error stream with the seed, and the process is aborted.
class Trail
{
public:
    /// Begins to watch: an action that lasts longer than `patience` seconds counts as waiting for ever.
    Trail(quint64 seed, int patience, const QString& log);
    ~Trail();
    Trail(const Trail&) = delete;
    Trail& operator=(const Trail&) = delete;

    /// A new action.
    void Begin(long number);
    /// What the action does, noted before it is done.
    void Note(const QString& what);
    /// Called at each note.
    std::function<void()> OnNote;
    /// One line more in the log file alone, if there is one.
    void Log(const QByteArray& line);

    /// The seed and the last actions with their numbers.
    QByteArray Told() const;
};

} // namespace zelvia::monkey
