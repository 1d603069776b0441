// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QWidget>

/// Another application in front of the window under test, for as long as the object lives. Under a window manager it
/// is a process of its own that the user changes to and from with Alt+Tab.
class OtherProgram
{
public:
    /// Brings the other program to the front.
    explicit OtherProgram(QWidget& window);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Changes back to the window under test.
    void ChangeBack();

    /// What the platform reports, where it has no other application, when the active window changes to `window`, or to
    /// none of this application.
    static void Report(QWidget* window);

private:
    QWidget& window_;
    QProcess process_;
};
