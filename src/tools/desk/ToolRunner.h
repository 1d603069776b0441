// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/Context.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QThread;

namespace zelvia
{

/// How an action has ended, and what it has said.
struct ToolOutcome {
    int status = kNotDone;
    bool cancelled = false;
    QString out;  ///< What programs read as well.
    QString told; ///< What only the user reads, without the program's name.
};

/// True when that sentence was said with `first` in the place %1 and any number in %2; any number in both when `first`
/// is a line's end.
bool Says(const ToolOutcome& outcome, const char* sentence, const char* first = "\n");

/// Runs one action after the other beside the window. The diary's routines have a state that they share, so there is
/// one runner for all pages and never more than one action at work.
class ToolRunner : public QObject
{
    Q_OBJECT

public:
    using Task = std::function<int(Terminal& terminal)>;
    using Done = std::function<void(const ToolOutcome& outcome)>;

    enum class Kind {
        Reads, ///< Can be cancelled whenever it says something; replaces what the same receiver has waiting.
        Writes ///< Runs to its end.
    };

    explicit ToolRunner(QObject* parent = nullptr) : QObject(parent) {}
    /// What was to be written still is, what is read is given up. Nobody is told.
    ~ToolRunner() override;

    /// Has the task run in its turn, and then `done`, unless the receiver has gone.
    void Run(Kind kind, QObject& receiver, Task task, Done done);
    /// The same for words as of a command line.
    void Run(Kind kind, QObject& receiver, const std::vector<std::string>& words, Done done);

    bool IsBusy() const { return thread_ != nullptr; }
    /// True while something runs that can't be cancelled.
    bool IsWriting() const { return IsBusy() && jobs_.front().kind == Kind::Writes; }
    /// True while something is written, or waits for its turn to be.
    bool HasToWrite() const;
    /// True when the last writing was not done, and no other was asked for since.
    bool HasFailed() const { return failed_; }
    /// Ends what can be cancelled, and drops what of that waits.
    void Cancel();

Q_SIGNALS:
    void StateChanged();
    /// The last line that the action has said while it runs.
    void Told(const QString& line);

private:
    struct Job {
        Kind kind;
        QPointer<QObject> receiver;
        Task task;
        Done done;
    };

    void StartNext();
    void Finish(const ToolOutcome& outcome);

    std::deque<Job> jobs_; ///< The first is at work while there is a thread.
    QThread* thread_ = nullptr;
    bool failed_ = false;
    std::atomic<bool> cancelled_{false};
};

} // namespace zelvia
