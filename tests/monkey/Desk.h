// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "support/ProgramFolderCopy.h"
#include "windows/page/FrmMain.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>

namespace zelvia::monkey
{

/// The program on its desk: its folder, its clock, its printer, its windows and the order in which they are over each
/// other. It takes the place of the window manager, which the display of the run does not have, and holds the timers
/// back that would otherwise run by the wall's clock.
class Desk : public QObject
{
    Q_OBJECT

public:
    Desk();
    ~Desk() override;

    const test::ProgramFolderCopy folder;
    CalendarDate today{2026, 5, 20};
    bool printerBroken = false;
    /// Runs for each new page, before it is shown.
    std::function<void(frmMain&)> Made;

    /// Starts the program; once more when it has ended.
    void Start();
    /// True when it has ended: the page has gone and no other window is left.
    bool Ended() const;
    /// The page, or null when it has gone.
    frmMain* Page() const { return page_; }

    /// The visible windows of the program, by name.
    QList<QWidget*> Windows() const;
    /// The visible window of a class, or null.
    template <typename Class>
    Class* Window() const
    {
        for (QWidget* window : Windows()) {
            if (auto* found = qobject_cast<Class*>(window)) {
                return found;
            }
        }
        return nullptr;
    }
    /// The one that has the keyboard, or null.
    QWidget* Front() const;
    /// Brings a window to the front, as a click on its title does.
    void Activate(QWidget& window);
    /// Lets the program come to rest: nothing waits to be reported, drawn or released, no menu and no box is up.
    void Settle();

    /// The tick of the page's timer.
    void Tick();
    /// Lets a held arrow repeat that many times.
    void Repeat(int times);

    /// Names of the commands carried out since Forget(), each as window.control.
    const QByteArrayList& Commands() const { return commands_; }
    bool Carried(const char* command) const { return commands_.contains(command); }
    void Forget() { commands_.clear(); }

    /// How often each command has been carried out, and each window been met.
    std::map<QByteArray, long> commandCounts;
    std::map<QByteArray, long> windowCounts;
    long printed = 0;
    int runs = 0;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void Listen(QWidget& window);
    void Note(const QByteArray& window, const QByteArray& command);
    void Restack();
    void GiveKeyboard();
    void Turn();

    QPointer<frmMain> page_;
    QPointer<QObject> pageTimer_;
    QList<QPointer<QWidget>> order_; ///< Of the windows, the front one last.
    QList<QPointer<QWidget>> heard_;
    QByteArrayList commands_;
    bool ticking_ = false;
    int repeats_ = 0;
};

} // namespace zelvia::monkey
