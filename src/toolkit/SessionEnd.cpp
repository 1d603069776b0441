// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/SessionEnd.h"

#include "core/MessageBox.h"
#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/Form.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace zelvia
{
namespace
{

constexpr std::array kSignals = {SIGTERM, SIGHUP};

/// The ends of a pipe: a signal may do little more than write to it.
std::array<int, 2> ends = {-1, -1};

void TellPipe(int /*signal*/)
{
    const int kept = errno;
    const char byte = 0;
    // A full pipe has reported it already.
    [[maybe_unused]] const ssize_t written = ::write(ends[1], &byte, 1);
    errno = kept;
}

void Handle(int signal, void (*handler)(int))
{
    struct sigaction before {
    };
    if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
        struct sigaction action {
        };
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }
}

/// What Escape answers.
MsgAnswer Dismiss(const MsgRequest& request)
{
    return request.buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
}

} // namespace

SessionEnd::SessionEnd(QWidget& window) : SessionEnd()
{
    window_ = &window;
}

SessionEnd::SessionEnd()
{
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { End(); }, Qt::DirectConnection);
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        End();
    });
    for (const int signal : kSignals) {
        Handle(signal, TellPipe);
    }
}

SessionEnd::~SessionEnd()
{
    for (const int signal : kSignals) {
        Handle(signal, SIG_DFL);
    }
    for (int& end : ends) {
        ::close(end);
        end = -1;
    }
    if (ending_) {
        SetMsgBoxHandler(answers_);
    }
}

/// Dismisses what is in front of the program's windows. False when there is nothing.
bool SessionEnd::DismissTop()
{
    if (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
        return true;
    }
    // Not a window of the program's own: that one closes with the page, and assigns what was entered in it.
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || qobject_cast<Form*>(modal) != nullptr) {
        return false;
    }
    // A box that is closed is answered as by Escape.
    modal->close();
    return true;
}

void SessionEnd::End()
{
    if (!ending_) {
        ending_ = true;
        answers_ = SetMsgBoxHandler(Dismiss);
    }
    // What was dismissed has to end before the next can be.
    if (DismissTop() || Routine::Running()) {
        constexpr int pause = 10;
        QTimer::singleShot(pause, this, [this] { End(); });
        return;
    }
    Close();
}

void SessionEnd::Close()
{
    FocusController::Instance().LeaveField();
    if (window_ != nullptr) {
        window_->close();
    }
    // Quitting would ask the windows once more. A loop that begins after an exit ends at once.
    if (QThread::currentThread()->loopLevel() > 0) {
        QCoreApplication::exit();
    }
}

} // namespace zelvia
