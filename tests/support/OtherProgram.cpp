// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/OtherProgram.h"

#include "support/Hand.h"
#include "support/TestProgram.h"

#include <QApplication>

#include <iostream>

namespace
{

constexpr const char* kRoutine = "other-program";

const zelvia::test::TestRoutine otherProgram(kRoutine, [](int argc, char* argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(200, 100);
    window.show();
    std::cout << window.winId() << std::endl;
    return QCoreApplication::exec();
});

} // namespace

OtherProgram::OtherProgram(QWidget& window) : window_(window)
{
    if (hand::OnX11()) {
        process_.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kRoutine)});
        QTRY_VERIFY_WITH_TIMEOUT(process_.canReadLine(), 20000);
        const WId other = process_.readLine().trimmed().toULongLong();
        hand::AwaitManager(other);
    } else {
        Report(nullptr);
    }
    QTRY_VERIFY(!window_.isActiveWindow());
    QTRY_VERIFY(QApplication::focusWidget() == nullptr);
}

OtherProgram::~OtherProgram()
{
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished();
    }
}

void OtherProgram::ChangeBack()
{
    if (hand::OnX11()) {
        hand::KeyForManager({QStringLiteral("keydown"), QStringLiteral("alt"), QStringLiteral("key"),
                             QStringLiteral("Tab"), QStringLiteral("keyup"), QStringLiteral("alt")},
                            [this] { return window_.isActiveWindow(); });
    } else {
        Report(&window_);
    }
    QTRY_VERIFY(window_.isActiveWindow());
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
}

// Qt has other means to bring a window to the front, but none to have no window active.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void OtherProgram::Report(QWidget* window)
{
    QApplication::setActiveWindow(window);
}
QT_WARNING_POP
