// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace zelvia
{

/// SIGTERM, SIGHUP and the end of the desktop's session act like the close box of the program's window, but nothing
/// asks: what is up is dismissed as by Escape, what would come up is answered so at once, and a field that is open is
/// closed first, as leaving it does.
class SessionEnd : public QObject
{
    Q_OBJECT

public:
    /// One for the life of the program. A signal that was ignored when it started stays ignored.
    explicit SessionEnd(QWidget& window);
    /// For a program that only shows boxes.
    SessionEnd();
    ~SessionEnd() override;

    /// Ends the program now, or as soon as what runs has ended.
    void End();

private:
    bool DismissTop();
    void Close();

    QPointer<QWidget> window_;
    bool ending_ = false;
    MsgBoxHandler answers_; ///< What answers message boxes before the end.
};

} // namespace zelvia
