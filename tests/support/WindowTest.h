// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Application.h"

#include <QTest>

/// The main function of a test program whose windows live under the program's own application.
#define ZELVIA_WINDOW_TEST_MAIN(TestClass)                                                                             \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        zelvia::Application application(argc, argv);                                                                   \
        TestClass test;                                                                                                \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

/// For what must not happen: watches for some turns of the event loop and a while longer that `condition` does not come
/// true.
template <typename Condition>
bool StaysFalse(Condition condition, int milliseconds = 150)
{
    return !QTest::qWaitFor(condition, milliseconds);
}
