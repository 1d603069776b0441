// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/OtherProgram.h"

#include "support/Hand.h"

#include <QApplication>
#include <QProcessEnvironment>
#include <QTest>

#include <iostream>
#include <string_view>

namespace
{

constexpr const char* kOption = "--other-program";

} // namespace

OtherProgram::OtherProgram(QWidget& window) : window_(window)
{
    if (hand::OnX11()) {
        // Its notes would go over those of this program, whose name it has.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("ZELVIA_SHOWN_TEXTS"));
        process_.setProcessEnvironment(environment);
        process_.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kOption)});
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

bool OtherProgram::RanInstead(int argc, char* argv[])
{
    if (argc < 2 || std::string_view(argv[1]) != kOption) {
        return false;
    }
    QApplication application(argc, argv);
    QWidget window;
    window.resize(200, 100);
    window.show();
    std::cout << window.winId() << std::endl;
    QCoreApplication::exec();
    return true;
}
