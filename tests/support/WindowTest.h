// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/TestProgram.h"
#include "toolkit/Application.h"

/// Lets the test program run a test class whose windows live under the program's own application.
#define ZELVIA_WINDOW_TEST(TestClass)                                                                                  \
    static const zelvia::test::TestRoutine thisTest(zelvia::test::TestName(#TestClass), [](int argc, char* argv[]) {   \
        zelvia::Application application(argc, argv);                                                                   \
        zelvia::Application::setQuitOnLastWindowClosed(false);                                                         \
        const auto status = [&] {                                                                                      \
            TestClass test;                                                                                            \
            return QTest::qExec(&test, argc, argv);                                                                    \
        }();                                                                                                           \
        return zelvia::Application::End(status);                                                                       \
    });

/// For what must not happen: watches for some turns of the event loop and a while longer that `condition` does not come
/// true.
template <typename Condition>
bool StaysFalse(Condition condition, int milliseconds = 150)
{
    return !QTest::qWaitFor(condition, milliseconds);
}
