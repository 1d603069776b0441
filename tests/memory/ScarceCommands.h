// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "memory/ScarceMemory.h"
#include "support/DayPage.h"
#include "support/ShownTexts.h"
#include "toolkit/FocusController.h"

#include <QByteArrayList>

#include <functional>
#include <string>
#include <utility>

namespace zelvia::test
{

/// Something that a user does, with the routines of it that report a lack of memory.
struct Command {
    QByteArrayList routines;       ///< Empty for one that reports under no name.
    std::function<void()> prepare; ///< Brings the windows to where the command begins; memory is plenty then.
    std::function<void()> run;
};

/// Keeps the reports of its lifetime and answers every other box with its first button.
class Reports
{
public:
    Reports() : previous_(SetMsgBoxHandler([this](const MsgRequest& request) { return Take(request); })) {}
    Reports(const Reports&) = delete;
    Reports& operator=(const Reports&) = delete;
    ~Reports() { SetMsgBoxHandler(std::move(previous_)); }

    /// What came so far, and nothing more than that.
    QByteArrayList Taken() { return std::exchange(reports_, {}); }

private:
    MsgAnswer Take(const MsgRequest& request)
    {
        ShownTexts::NoteBox(request);
        if (request.buttons == MsgButtons::YesNoCancel) {
            return MsgAnswer::No;
        }
        if (request.buttons == MsgButtons::OK && request.icon == MsgIcon::None) {
            reports_ << QByteArray::fromStdString(request.text);
        }
        return MsgAnswer::OK;
    }

    MsgBoxHandler previous_;
    QByteArrayList reports_;
};

inline void Settle()
{
    QCoreApplication::processEvents();
    FocusController::Instance().Flush();
}

/// Runs a command again and again, each time with the next of its requests for memory refused, and takes what it
/// reports first off `missing`. That must always be that memory is exhausted.
inline void RefuseOneByOne(const Command& command, Reports& reports, QByteArrayList& missing)
{
    constexpr int most = 3000;
    for (int nth = 1; !missing.isEmpty() && nth < most; ++nth) {
        command.prepare();
        Settle();
        reports.Taken();
        bool struck = false;
        {
            const ScarceMemory memory(nth);
            command.run();
            Settle();
            struck = memory.Struck();
        }
        if (!struck) {
            break;
        }
        const QByteArrayList taken = reports.Taken();
        if (taken.isEmpty()) {
            continue;
        }
        // What was left undone may be reported after it.
        const QByteArray& first = taken.constFirst();
        QVERIFY2(first.endsWith("ERRORE : 7 Memoria esaurita") || first == "ERRORE : Memoria esaurita Liste Percorso",
                 first.constData());
        missing.removeAll(first);
    }
}

/// Refuses the requests for memory of a command until each routine has reported under its title.
inline void VerifyReports(const Command& command)
{
    Reports reports;
    QByteArrayList missing;
    for (const QByteArray& routine : command.routines) {
        missing << (routine.isEmpty() ? QByteArray() : routine + " - ") + "ERRORE : 7 Memoria esaurita";
    }
    // The queue of the focus asks for memory once in many runs, and puts the others off by one in that run: what a pass
    // misses by it another one finds.
    constexpr int passes = 5;
    for (int pass = 1; pass <= passes && !missing.isEmpty(); ++pass) {
        RefuseOneByOne(command, reports, missing);
    }
    QVERIFY2(missing.isEmpty(), missing.join(" | ").constData());
}

} // namespace zelvia::test
